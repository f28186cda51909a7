#include "shell/store/Stato.h"

#include <algorithm>

namespace zuvora {

namespace {

constexpr int righeFinestra = 32; // about what a list shows at once

QByteArray posti(int quanti) {
    QByteArray elenco;
    for (int i = 1; i <= quanti; ++i)
        elenco += (i == 1 ? "?" : ",?") + QByteArray::number(i);
    return elenco;
}

} // namespace

void Recordset::Stato::dimentica() {
    m_riga.reset();
    m_finestra.clear();
}

void Recordset::Stato::vaiA(int nuovoPosto) {
    dimentica();
    modo = Modo::Lettura;
    scritti.clear();
    cancellato = false;
    posto = nuovoPosto;
}

EngineError Recordset::Stato::senzaRecord(Azione azione) const {
    return connessione.errore(Errore::NessunRecord, azione, sorgente.testo);
}

std::optional<Valori> Recordset::Stato::leggiRiga(qint64 chiave) {
    if (m_selezione.isEmpty())
        m_selezione = "SELECT " + sorgente.elencoColonne() + " FROM " + nomeSql(sorgente.tabella) + " WHERE " +
                      sorgente.chiave + "=?1";
    Istruzione i = connessione.prepara(m_selezione, Azione::Lettura);
    i.lega(1, chiave);
    if (!i.avanti())
        return std::nullopt;
    Valori riga;
    for (int n = 0; n < static_cast<int>(sorgente.colonne.size()); ++n)
        riga.append(i.valore(n, sorgente.colonne[static_cast<size_t>(n)].tipo));
    return riga;
}

const Valori &Recordset::Stato::rigaCorrente() {
    if (!suRecord())
        throw senzaRecord(Azione::Lettura);
    if (!sorgente.aChiavi())
        return sorgente.righe[static_cast<size_t>(posto)];
    if (!m_riga)
        m_riga = leggiRiga(sorgente.chiavi[static_cast<size_t>(posto)]);
    if (!m_riga)
        throw senzaRecord(Azione::Lettura);
    return *m_riga;
}

void Recordset::Stato::riempiFinestra(int riga) {
    // A few rows before the one asked for, so that a list scrolled upwards has them too.
    m_inizioFinestra = std::max(0, riga - righeFinestra / 4);
    const int fine = std::min(m_inizioFinestra + righeFinestra, sorgente.quante());
    m_finestra.assign(static_cast<size_t>(fine - m_inizioFinestra), Valori());
    // One statement for all of them: one lock, not one a row. Places without a row stay Null and match none.
    Istruzione i = connessione.prepara("SELECT " + sorgente.chiave + "," + sorgente.elencoColonne() + " FROM " +
                                           nomeSql(sorgente.tabella) + " WHERE " + sorgente.chiave + " IN (" +
                                           posti(righeFinestra) + ")",
                                       Azione::Lettura);
    const auto primaChiave = sorgente.chiavi.begin() + m_inizioFinestra;
    const auto ultimaChiave = sorgente.chiavi.begin() + fine;
    for (auto k = primaChiave; k != ultimaChiave; ++k)
        i.lega(static_cast<int>(k - primaChiave) + 1, static_cast<qlonglong>(*k));
    while (i.avanti()) {
        const auto k = std::find(primaChiave, ultimaChiave, i.intero(0));
        if (k == ultimaChiave)
            continue;
        Valori &destinazione = m_finestra[static_cast<size_t>(k - primaChiave)];
        for (int n = 0; n < static_cast<int>(sorgente.colonne.size()); ++n)
            destinazione.append(i.valore(n + 1, sorgente.colonne[static_cast<size_t>(n)].tipo));
    }
}

Valore Recordset::Stato::daFinestra(int riga, int colonna) {
    if (riga < 0 || riga >= sorgente.quante() || colonna < 0 || colonna >= static_cast<int>(sorgente.colonne.size()))
        return {};
    if (!sorgente.aChiavi())
        return sorgente.righe[static_cast<size_t>(riga)][colonna];
    if (riga < m_inizioFinestra || riga >= m_inizioFinestra + static_cast<int>(m_finestra.size()))
        riempiFinestra(riga);
    return m_finestra[static_cast<size_t>(riga - m_inizioFinestra)].value(colonna);
}

void Recordset::Stato::apri(Modo nuovo) {
    if (nuovo == Modo::Modifica && !suRecord())
        throw senzaRecord(Azione::Scrittura);
    if (!sorgente.aChiavi() || connessione.soloLettura())
        throw connessione.errore(Errore::SolaLettura, Azione::Scrittura);
    dimentica();
    scritti.assign(sorgente.colonne.size(), std::nullopt);
    modo = nuovo;
}

void Recordset::Stato::scrivi() {
    if (modo == Modo::Lettura)
        throw connessione.errore(Errore::ModificaNonIniziata, Azione::Scrittura);
    QList<int> colonne;
    for (int n = 0; n < static_cast<int>(scritti.size()); ++n)
        if (scritti[static_cast<size_t>(n)])
            colonne.append(n);
    if (modo == Modo::Modifica)
        aggiorna(colonne);
    else
        inserisci(colonne);
    dimentica();
    scritti.clear();
    modo = Modo::Lettura;
}

void Recordset::Stato::aggiorna(const QList<int> &colonne) {
    if (colonne.isEmpty())
        return;
    QByteArray assegni;
    QList<Valore> valori;
    for (const int n : colonne) {
        valori.append(*scritti[static_cast<size_t>(n)]);
        assegni += (assegni.isEmpty() ? "" : ",") + nomeSql(sorgente.colonne[static_cast<size_t>(n)].origine) + "=?" +
                   QByteArray::number(valori.size());
    }
    qint64 &chiave = sorgente.chiavi[static_cast<size_t>(posto)];
    valori.append(static_cast<qlonglong>(chiave));
    const QByteArray sql = "UPDATE " + nomeSql(sorgente.tabella) + " SET " + assegni + " WHERE " + sorgente.chiave +
                           "=?" + QByteArray::number(valori.size());
    if (connessione.scrivi(sql, valori) == 0)
        throw senzaRecord(Azione::Scrittura);
    if (colonne.contains(sorgente.colonnaChiave))
        chiave = scritti[static_cast<size_t>(sorgente.colonnaChiave)]->toLongLong();
}

void Recordset::Stato::inserisci(const QList<int> &colonne) {
    QByteArray nomi;
    QList<Valore> valori;
    for (const int n : colonne) {
        nomi += (nomi.isEmpty() ? "" : ",") + nomeSql(sorgente.colonne[static_cast<size_t>(n)].origine);
        valori.append(*scritti[static_cast<size_t>(n)]);
    }
    const QByteArray sql =
        "INSERT INTO " + nomeSql(sorgente.tabella) +
        (valori.isEmpty() ? QByteArray(" DEFAULT VALUES")
                          : " (" + nomi + ") VALUES (" + posti(static_cast<int>(valori.size())) + ")");
    connessione.scrivi(sql, valori);
    sorgente.chiavi.push_back(connessione.ultimaChiave());
}

void Recordset::Stato::cancella() {
    apri(Modo::Modifica);
    modo = Modo::Lettura;
    const auto chiave = sorgente.chiavi.begin() + posto;
    const QByteArray sql = "DELETE FROM " + nomeSql(sorgente.tabella) + " WHERE " + sorgente.chiave + "=?1";
    if (connessione.scrivi(sql, {static_cast<qlonglong>(*chiave)}) == 0)
        throw senzaRecord(Azione::Scrittura);
    sorgente.chiavi.erase(chiave);
    cancellato = true;
}

} // namespace zuvora
