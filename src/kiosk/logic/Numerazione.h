#pragma once

#include <QString>
#include <array>

namespace zuvora {

inline constexpr int serviziNumerati = 20;

// One text a service, by position: the n-th belongs to the n-th row of `Servizi`.
using ColonnaServizi = std::array<QString, serviziNumerati>;

// The two tables of the kiosk's database; one row each.
enum class TabellaNumeri { Numerazione, NumerazioneIniziale };

// The names of all services, free ones too; empty where the table has no such row.
ColonnaServizi nomiServizi(const QString &cartella);
// `archivio` is the kiosk's database. Null shows as the empty text.
ColonnaServizi leggiNumeri(const QString &archivio, TabellaNumeri tabella);

// What is written for a text: "0" for one that is no number.
QString numeroDaScrivere(const QString &testo);
// `servizio` counts from 1. No other column is touched.
void scriviNumero(const QString &archivio, int servizio, const QString &numero);
void scriviNumeriIniziali(const QString &archivio, const ColonnaServizi &numeri);

} // namespace zuvora
