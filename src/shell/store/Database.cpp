#include "shell/store/Database.h"

#include "shell/store/Connessione.h"

#include <array>
#include <sqlite3.h>
#include <utility>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList primaColonna(Istruzione i) {
    QStringList valori;
    while (i.avanti())
        valori.append(i.testo(0));
    return valori;
}

QByteArray tipoSql(TipoCampo tipo) {
    switch (tipo) {
    case TipoCampo::Booleano:
        return "BOOLEAN";
    case TipoCampo::Intero:
        return "INTEGER";
    case TipoCampo::Singolo:
    case TipoCampo::Doppio:
        return "REAL";
    case TipoCampo::Testo:
        break;
    }
    return "TEXT";
}

} // namespace

Database::Database(std::unique_ptr<Connessione> c) : m_connessione(std::move(c)) {}
Database::~Database() = default;
Database::Database(Database &&) noexcept = default;
Database &Database::operator=(Database &&) noexcept = default;

Database Database::OpenDatabase(const QString &percorso, std::chrono::milliseconds attesa) {
    return Database(std::make_unique<Connessione>(percorso, attesa));
}

Database Database::apriInLettura(const QString &percorso, std::chrono::milliseconds attesa) {
    return Database(std::make_unique<Connessione>(percorso, attesa, Modo::SolaLettura));
}

Database Database::crea(const QString &percorso) {
    return Database(std::make_unique<Connessione>(percorso, attesaBlocco, Modo::Nuovo));
}

Database Database::inMemoria() {
    return crea(u":memory:"_s);
}

// The connection object stays, closed: what was taken from the collections gives an error instead of reaching nowhere.
void Database::Close() {
    m_connessione->chiudi();
}

Database::ElencoTabelle Database::TableDefs() {
    return ElencoTabelle(*m_connessione);
}

void Database::Execute(const QString &sql) {
    Istruzione i = m_connessione->preparaUnica(sql, Azione::Scrittura);
    if (sqlite3_stmt_readonly(i.grezza()) != 0 && sqlite3_column_count(i.grezza()) > 0)
        throw m_connessione->errore(Errore::SelezioneInEsecuzione, Azione::Scrittura);
    while (i.avanti()) {
    }
}

void Database::esegui(const QString &sql) {
    m_connessione->eseguiTutto(sql.toUtf8());
}

void Database::eseguiPerRighe(const QString &sql, const QList<QStringList> &righe) {
    for (const QStringList &riga : righe) {
        QList<Valore> valori;
        for (const QString &testo : riga)
            valori += testo.isNull() ? Valore() : Valore(testo);
        m_connessione->scrivi(sql.toUtf8(), valori);
    }
}

QList<QList<Valore>> Database::leggi(const QString &sql) {
    QList<QList<Valore>> righe;
    Istruzione i = m_connessione->preparaUnica(sql, Azione::Lettura);
    while (i.avanti()) {
        QList<Valore> riga;
        for (int n = 0; n < sqlite3_column_count(i.grezza()); ++n)
            riga += i.valore(n, TipoColonna::Libero);
        righe += riga;
    }
    return righe;
}

QList<QStringList> Database::leggiTesti(const QString &sql) {
    QList<QStringList> righe;
    const QList<QList<Valore>> lette = leggi(sql);
    for (const QList<Valore> &riga : lette) {
        righe.emplaceBack();
        for (const Valore &v : riga)
            righe.back() += testoDi(v, {});
    }
    return righe;
}

void Database::copiaDa(Database &origine) {
    m_connessione->copiaDa(*origine.m_connessione);
}

bool Database::integro() {
    return primaColonna(m_connessione->prepara("PRAGMA quick_check(1)", Azione::Lettura)) == QStringList{u"ok"_s};
}

Database::ElencoTabelle::ElencoTabelle(Connessione &c) : m_connessione(&c) {}

QStringList Database::ElencoTabelle::Names() const {
    return primaColonna(m_connessione->prepara(
        "SELECT name FROM sqlite_master WHERE type = 'table' AND substr(name, 1, 7) <> 'sqlite_'", Azione::Lettura));
}

Database::Tabella Database::ElencoTabelle::Item(const QString &tabella) const {
    const QStringList nomi = Names();
    for (const QString &nome : nomi)
        if (nome.compare(tabella, Qt::CaseInsensitive) == 0)
            return {*m_connessione, nome};
    throw m_connessione->errore(Errore::ColonnaNonTrovata, Azione::Lettura, tabella);
}

Database::Tabella::Tabella(Connessione &c, QString tabella) : m_connessione(&c), m_tabella(std::move(tabella)) {}

Database::ElencoCampi Database::Tabella::Fields() const {
    return {*m_connessione, m_tabella};
}

Database::ElencoCampi::ElencoCampi(Connessione &c, QString tabella)
    : m_connessione(&c), m_tabella(std::move(tabella)) {}

QStringList Database::ElencoCampi::Names() const {
    Istruzione i = m_connessione->prepara("SELECT name FROM pragma_table_info(?1) ORDER BY cid", Azione::Lettura);
    i.lega(1, m_tabella);
    return primaColonna(std::move(i));
}

void Database::ElencoCampi::Append(const Campo &campo) {
    if (Names().contains(campo.Name, Qt::CaseInsensitive))
        throw m_connessione->errore(Errore::ColonnaGiaPresente, Azione::Scrittura, campo.Name);
    m_connessione->scrivi("ALTER TABLE " + nomeSql(m_tabella.toUtf8()) + " ADD COLUMN " + nomeSql(campo.Name.toUtf8()) +
                              " " + tipoSql(campo.Type),
                          {});
}

} // namespace zuvora
