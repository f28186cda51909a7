#pragma once

#include "shell/store/Recordset.h"
#include "shell/store/Sorgente.h"

#include <optional>
#include <utility>

namespace zuvora {

// What a record set knows: its rows' keys, the place of the current record, and what was stored but not yet written.
struct Recordset::Stato {
    enum class Modo { Lettura, Modifica, Nuovo };

    Stato(Connessione &c, Sorgente s)
        : connessione(c), sorgente(std::move(s)), m_riga(std::exchange(sorgente.prima, std::nullopt)) {}

    bool suRecord() const { return !cancellato && posto >= 0 && posto < sorgente.quante(); }
    // Leaves the row: what was stored without Update is dropped, and the next reading goes to the file.
    void vaiA(int nuovoPosto);
    void dimentica();

    // The current record's row; 3021 without one, also when another program has deleted it.
    const Valori &rigaCorrente();
    Valore daFinestra(int riga, int colonna);

    void apri(Modo nuovo); // 3027 where nothing can be written
    void scrivi();
    void cancella();

    EngineError senzaRecord(Azione azione) const;

    Connessione &connessione;
    Sorgente sorgente;
    int posto = 0;
    bool cancellato = false; // the current record was deleted; `posto` is already the one behind it
    bool nessuno = false;    // NoMatch
    Modo modo = Modo::Lettura;
    std::vector<std::optional<Valore>> scritti; // by column, while Edit or AddNew is open

private:
    std::optional<Valori> leggiRiga(qint64 chiave);
    void riempiFinestra(int riga);
    void aggiorna(const QList<int> &colonne);
    void inserisci(const QList<int> &colonne);

    QByteArray m_selezione; // of one row by its key; made once, for a layout asks for 70
    std::optional<Valori> m_riga;
    // The rows around the last one that a list asked for; an empty row is one that is gone.
    int m_inizioFinestra = 0;
    std::vector<Valori> m_finestra;
};

} // namespace zuvora
