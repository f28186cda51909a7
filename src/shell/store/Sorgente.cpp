#include "shell/store/Sorgente.h"

#include <algorithm>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <unordered_set>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char numeroRiga[] = "rowid";

bool eSql(const QString &testo) {
    for (const QStringView parola : {QStringView(u"select"), QStringView(u"with")})
        if (testo.startsWith(parola, Qt::CaseInsensitive) &&
            (testo.size() == parola.size() ||
             !(testo[parola.size()].isLetterOrNumber() || testo[parola.size()] == u'_')))
            return true;
    return false;
}

QString senzaParentesi(const QString &nome) {
    return nome.startsWith(u'[') && nome.endsWith(u']') ? nome.mid(1, nome.size() - 2) : nome;
}

// The table's column that is its row key (an INTEGER PRIMARY KEY alone): the one that the row number is taken from.
// Empty when it has none, as a view or a table without row numbers.
QByteArray chiaveDi(Connessione &c, const QByteArray &tabella) {
    try {
        const Istruzione i = c.prepara("SELECT rowid FROM " + nomeSql(tabella), Azione::Lettura);
        const QByteArray origine(sqlite3_column_origin_name(i.grezza(), 0));
        return origine == numeroRiga ? QByteArray() : origine;
    } catch (const EngineError &e) {
        if (e.numero() == Errore::ColonnaNonTrovata)
            return {};
        throw;
    }
}

Colonna colonna(const char *nome, const char *origine, const char *tipo) {
    const QByteArray dichiarato = QByteArray(tipo).toUpper();
    return {QString::fromUtf8(nome), QByteArray(origine), dichiarato, tipoColonna(dichiarato)};
}

Colonna colonna(sqlite3_stmt *s, int n) {
    return colonna(sqlite3_column_name(s, n), sqlite3_column_origin_name(s, n), sqlite3_column_decltype(s, n));
}

// A select's columns, and its table when every column comes from one table, each once, and one of them is the key.
// The statement has made its first step: only then its columns are those of the file as it is now.
void descrivi(Connessione &c, sqlite3_stmt *s, Sorgente &sorgente) {
    const int quante = sqlite3_column_count(s);
    bool unica = quante > 0;
    QByteArray tabella;
    std::unordered_set<std::string> viste;
    for (int i = 0; i < quante; ++i) {
        sorgente.colonne.push_back(colonna(s, i));
        const QByteArray di(sqlite3_column_table_name(s, i));
        if (i == 0)
            tabella = di;
        unica = unica && !di.isEmpty() && di == tabella &&
                viste.insert(sorgente.colonne.back().origine.toStdString()).second;
    }
    if (!unica)
        return;
    const QByteArray chiave = chiaveDi(c, tabella);
    const auto trovata = std::ranges::find(sorgente.colonne, chiave, &Colonna::origine);
    if (chiave.isEmpty() || trovata == sorgente.colonne.end())
        return;
    sorgente.tabella = tabella;
    sorgente.chiave = nomeSql(chiave);
    sorgente.colonnaChiave = static_cast<int>(trovata - sorgente.colonne.begin());
}

Valori valori(const Istruzione &i, int daColonna, const Sorgente &sorgente) {
    Valori riga;
    for (const Colonna &c : sorgente.colonne)
        riga.append(i.valore(daColonna++, c.tipo));
    return riga;
}

void apriSelect(Connessione &c, const QString &sql, int limite, Sorgente &sorgente) {
    Istruzione i = c.preparaUnica(sql, Azione::Lettura);
    if (sqlite3_column_count(i.grezza()) == 0 || sqlite3_stmt_readonly(i.grezza()) == 0)
        throw c.errore(Errore::Sintassi, Azione::Lettura);
    bool altra = i.avanti();
    descrivi(c, i.grezza(), sorgente);
    for (; altra && sorgente.quante() < limite; altra = i.avanti()) {
        if (sorgente.aChiavi())
            sorgente.chiavi.push_back(i.intero(sorgente.colonnaChiave));
        else
            sorgente.righe.push_back(valori(i, 0, sorgente));
    }
}

// Columns, key and first row of a table in one statement, for most tables have one row. False when its rows have no
// number: a view, or a table made without.
bool apriTabella(Connessione &c, const QString &nome, int limite, Sorgente &sorgente) {
    const QByteArray daTabella = " FROM main." + nomeSql(nome.toUtf8());
    std::optional<Istruzione> prima;
    try {
        prima.emplace(c.prepara("SELECT rowid,*" + daTabella + " ORDER BY rowid", Azione::Lettura));
    } catch (const EngineError &e) {
        if (e.numero() == Errore::TabellaNonTrovata)
            throw c.errore(Errore::TabellaNonTrovata, Azione::Lettura, nome);
        if (e.numero() != Errore::ColonnaNonTrovata)
            throw;
        return false;
    }
    sqlite3_stmt *s = prima->grezza();
    if (sqlite3_column_origin_name(s, 0) == nullptr) // before the first row: a view may be endless
        return false;
    const bool qualcuna = prima->avanti();
    const QByteArray chiave(sqlite3_column_origin_name(s, 0));
    sorgente.tabella = QByteArray(sqlite3_column_table_name(s, 0));
    sorgente.chiave = chiave == numeroRiga ? chiave : nomeSql(chiave);
    for (int n = 1; n < sqlite3_column_count(s); ++n) {
        sorgente.colonne.push_back(colonna(s, n));
        if (sorgente.colonne.back().origine == chiave)
            sorgente.colonnaChiave = n - 1;
    }
    if (!qualcuna)
        return true;
    sorgente.chiavi.push_back(prima->intero(0));
    if (limite == 1)
        sorgente.prima = valori(*prima, 1, sorgente);
    if (limite == 1 || !prima->avanti())
        return true;
    // The many rows of a list: their keys alone.
    Istruzione righe = c.prepara("SELECT rowid" + daTabella + " WHERE rowid>?1 ORDER BY rowid", Azione::Lettura);
    righe.lega(1, sorgente.chiavi.front());
    while (sorgente.quante() < limite && righe.avanti())
        sorgente.chiavi.push_back(righe.intero(0));
    return true;
}

} // namespace

QByteArray Sorgente::elencoColonne() const {
    QByteArray elenco;
    for (const Colonna &col : colonne)
        elenco += (elenco.isEmpty() ? "" : ",") + nomeSql(col.origine);
    return elenco;
}

Sorgente apriSorgente(Connessione &c, const QString &testo, int limite) {
    Sorgente sorgente;
    sorgente.testo = testo;
    const QString netto = testo.trimmed();
    if (eSql(netto)) {
        apriSelect(c, testo, limite, sorgente);
        return sorgente;
    }
    const QString nome = senzaParentesi(netto);
    if (!apriTabella(c, nome, limite, sorgente)) {
        sorgente.testo = u"SELECT * FROM "_s + QString::fromUtf8(nomeSql(nome.toUtf8()));
        apriSelect(c, sorgente.testo, limite, sorgente);
    }
    return sorgente;
}

int trovaPrimo(Connessione &c, const Sorgente &sorgente, const QString &criterio) {
    if (!sorgente.aChiavi()) {
        Istruzione i =
            c.preparaUnica(u"SELECT ("_s + criterio + u") FROM ("_s + sorgente.testo + u")"_s, Azione::Lettura);
        for (int posto = 0; i.avanti() && posto < sorgente.quante(); ++posto)
            if (eVero(i.valore(0, TipoColonna::Booleano)))
                return posto;
        return -1;
    }
    std::unordered_set<qint64> trovate;
    Istruzione i = c.preparaUnica(
        QString::fromUtf8("SELECT " + sorgente.chiave + " FROM " + nomeSql(sorgente.tabella) + " WHERE ") + criterio,
        Azione::Lettura);
    while (i.avanti())
        trovate.insert(i.intero(0));
    const auto primo = std::ranges::find_if(sorgente.chiavi, [&](qint64 k) { return trovate.contains(k); });
    return primo == sorgente.chiavi.end() ? -1 : static_cast<int>(primo - sorgente.chiavi.begin());
}

} // namespace zuvora
