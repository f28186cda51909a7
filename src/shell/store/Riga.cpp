#include "shell/store/Riga.h"

#include "shell/store/Data.h"
#include "shell/store/Frasi.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

namespace zuvora {
namespace {

Recordset &prima(Data &dato, const QString &archivio, const QString &tabella) {
    dato.DatabaseName = archivio;
    dato.RecordSource = tabella;
    const QScopedValueRollback<int> unaSola(dato.limite, 1);
    dato.Refresh();
    return dato.Recordset();
}

Riga leggi(Data &dato, const QString &archivio, const QString &tabella) {
    Recordset &rs = prima(dato, archivio, tabella);
    if (rs.RecordCount() == 0)
        throw errore(Errore::NessunRecord, {archivio, Azione::Lettura, tabella});
    QList<Valore> valori;
    for (int n = 0; n < rs.Fields().Count(); ++n)
        valori += rs.Fields().Item(n).Value();
    return {archivio, rs.Fields().Names(), valori};
}

} // namespace

Riga::Riga(QString archivio, QStringList nomi, QList<Valore> valori)
    : m_archivio(std::move(archivio)), m_nomi(std::move(nomi)), m_valori(std::move(valori)) {}

qsizetype Riga::posto(QStringView colonna) const {
    const auto trovato = std::ranges::find_if(
        m_nomi, [&](const QString &nome) { return colonna.compare(nome, Qt::CaseInsensitive) == 0; });
    return trovato == m_nomi.end() ? -1 : trovato - m_nomi.begin();
}

const Valore &Riga::operator[](QStringView colonna) const {
    const qsizetype n = posto(colonna);
    if (n < 0)
        throw errore(Errore::ColonnaNonTrovata, {m_archivio, Azione::Lettura, colonna.toString()});
    return m_valori[n];
}

QString Riga::testo(QStringView colonna, const QString &seNull) const {
    return testoDi((*this)[colonna], seNull);
}

bool Riga::vero(QStringView colonna) const {
    return eVero((*this)[colonna]);
}

Riga leggiRigaDi(const QString &archivio, const QString &tabella) {
    Data dato;
    return leggi(dato, archivio, tabella);
}

void scriviRigaDi(const QString &archivio, const QString &tabella, const QList<Assegno> &valori) {
    Data dato;
    Recordset &rs = prima(dato, archivio, tabella);
    rs.Edit();
    for (const Assegno &a : valori)
        rs[a.colonna].SetValue(a.valore);
    rs.Update();
}

Riga leggiRiga(const QString &cartella, const QString &tabella) {
    return leggiRigaDi(percorsoArchivio(cartella), tabella);
}

Riga leggiRiga(Data &dato, const QString &cartella, const QString &tabella) {
    return leggi(dato, percorsoArchivio(cartella), tabella);
}

void scriviRiga(const QString &cartella, const QString &tabella, const QList<Assegno> &valori) {
    scriviRigaDi(percorsoArchivio(cartella), tabella, valori);
}

} // namespace zuvora
