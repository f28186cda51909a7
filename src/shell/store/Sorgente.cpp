#include "shell/store/Sorgente.h"

#include <algorithm>
#include <sqlite3.h>
#include <string>
#include <unordered_set>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

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

// The table's column that is its row key (an INTEGER PRIMARY KEY alone); empty when it has none.
QByteArray chiaveDi(Connessione &c, const QByteArray &tabella) {
    Istruzione i = c.prepara("SELECT name, type FROM pragma_table_info(?1) WHERE pk > 0", Azione::Lettura);
    i.lega(1, QString::fromUtf8(tabella));
    QByteArray nome;
    for (int n = 0; i.avanti(); ++n)
        nome = n == 0 && i.testo(1).compare(u"INTEGER", Qt::CaseInsensitive) == 0 ? i.testo(0).toUtf8() : QByteArray();
    return nome;
}

Colonna colonna(const char *nome, const char *origine, const char *tipo) {
    const QByteArray dichiarato = QByteArray(tipo).toUpper();
    return {QString::fromUtf8(nome), QByteArray(origine), dichiarato, tipoColonna(dichiarato)};
}

// A select's columns, and its table when every column comes from one table, each once, and one of them is the key.
void descrivi(Connessione &c, sqlite3_stmt *s, Sorgente &sorgente) {
    const int quante = sqlite3_column_count(s);
    bool unica = quante > 0;
    QByteArray tabella;
    std::unordered_set<std::string> viste;
    for (int i = 0; i < quante; ++i) {
        sorgente.colonne.push_back(
            colonna(sqlite3_column_name(s, i), sqlite3_column_origin_name(s, i), sqlite3_column_decltype(s, i)));
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

void apriSelect(Connessione &c, const QString &sql, int limite, Sorgente &sorgente) {
    Istruzione i = c.preparaUnica(sql, Azione::Lettura);
    if (sqlite3_column_count(i.grezza()) == 0 || sqlite3_stmt_readonly(i.grezza()) == 0)
        throw c.errore(Errore::Sintassi, Azione::Lettura);
    descrivi(c, i.grezza(), sorgente);
    const int colonne = static_cast<int>(sorgente.colonne.size());
    while (i.avanti()) {
        if (sorgente.quante() >= limite)
            return;
        if (sorgente.aChiavi()) {
            sorgente.chiavi.push_back(i.intero(sorgente.colonnaChiave));
            continue;
        }
        Valori riga;
        for (int n = 0; n < colonne; ++n)
            riga.append(i.valore(n, sorgente.colonne[static_cast<size_t>(n)].tipo));
        sorgente.righe.push_back(riga);
    }
}

void apriTabella(Connessione &c, const QByteArray &tabella, int limite, Sorgente &sorgente) {
    sorgente.tabella = tabella;
    const QByteArray chiave = chiaveDi(c, tabella);
    sorgente.chiave = chiave.isEmpty() ? "rowid" : nomeSql(chiave);
    Istruzione colonne = c.prepara("SELECT name, type FROM pragma_table_info(?1) ORDER BY cid", Azione::Lettura);
    colonne.lega(1, QString::fromUtf8(tabella));
    while (colonne.avanti()) {
        const QByteArray nome = colonne.testo(0).toUtf8();
        if (nome == chiave)
            sorgente.colonnaChiave = static_cast<int>(sorgente.colonne.size());
        sorgente.colonne.push_back(colonna(nome.constData(), nome.constData(), colonne.testo(1).toUtf8().constData()));
    }
    // Ordered, or the engine might walk an index that covers the key.
    Istruzione righe = c.prepara(
        "SELECT " + sorgente.chiave + " FROM " + nomeSql(tabella) + " ORDER BY " + sorgente.chiave, Azione::Lettura);
    while (righe.avanti()) {
        if (sorgente.quante() >= limite)
            return;
        sorgente.chiavi.push_back(righe.intero(0));
    }
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
    QByteArray tabella;
    bool conNumero = false; // rows with a row number: not so in a view
    {
        Istruzione i = c.prepara("SELECT name, type = 'table' AND NOT wr FROM pragma_table_list "
                                 "WHERE schema = 'main' AND name = ?1 COLLATE NOCASE",
                                 Azione::Lettura);
        i.lega(1, nome);
        if (!i.avanti())
            throw c.errore(Errore::TabellaNonTrovata, Azione::Lettura, nome);
        tabella = i.testo(0).toUtf8();
        conNumero = i.intero(1) != 0;
    }
    if (conNumero) {
        apriTabella(c, tabella, limite, sorgente);
    } else {
        sorgente.testo = u"SELECT * FROM "_s + QString::fromUtf8(nomeSql(tabella));
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
