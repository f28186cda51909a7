#pragma once

#include "kiosk/logic/ConfigurazioneTotem.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"
#include "shell/store/Riga.h"

#include <QStringList>
#include <bitset>
#include <optional>

namespace zuvora {

// Brings the kiosk's row to the form and back. A load can stop early; what it didn't show is not overwritten later.
class RigaTotem {
public:
    explicit RigaTotem(QString cartella);

    // Throws EngineError when the row itself can't be read.
    void carica();
    // The three parts of it, in their order.
    void caricaInizio();
    bool caricaServizi(); // false ends the load
    void caricaResto();

    const ContenutoTotem &contenuto() const { return m_contenuto; }
    const QStringList &servizi() const { return m_servizi; }
    // What stopped the load, if it was a failure.
    const std::optional<EngineError> &guasto() const { return m_guasto; }

    // Two writes: path and screen, then the rest. Written is what the load has shown or `adesso` has changed since; a
    // screen that isn't chosen stays as it was.
    void salva(const ContenutoTotem &adesso);

private:
    void mostra(CampoTotem campo, const Riga &riga);
    bool mostraVisibilita(const Riga &riga);
    void scrivi(const ContenutoTotem &adesso, QList<CampoTotem> campi);
    bool daScrivere(CampoTotem campo, const ContenutoTotem &adesso) const;

    QString m_cartella;
    Data Data8; // one connection for the three parts
    ContenutoTotem m_contenuto;
    std::bitset<colonneTotem.size()> m_mostrati;
    QStringList m_servizi;
    std::optional<EngineError> m_guasto;
};

// Adds the two columns that older databases lack; one that is there already stays.
void AggiungiColonneTotem(const QString &cartella);

} // namespace zuvora
