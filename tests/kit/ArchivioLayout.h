#pragma once

#include "designer/logic/DisplayLayout.h"
#include "designer/logic/ImmaginiQt.h"
#include "shell/store/Data.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

// Readable failures.
inline void PrintTo(const QString &s, std::ostream *os) {
    *os << '"' << s.toStdString() << '"';
}

namespace zuvora::prova {

using namespace Qt::Literals::StringLiterals;

// Takes every picture but those it is told to miss, and notes what it was asked for.
class FinteImmagini final : public CaricatoreImmagini {
public:
    bool carica(const QString &percorso) override {
        chieste.append(percorso);
        return !mancanti.contains(percorso);
    }
    QSet<QString> mancanti;
    QStringList chieste;
};

// A settings database with the installed schema, as another program sees it.
class ArchivioLayout : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_cartella.isValid());
        ASSERT_EQ(sqlite3_open(m_cartella.filePath(u"Zuvora.mdb"_s).toUtf8().constData(), &m_db), SQLITE_OK);
        QFile schema(QStringLiteral(CARTELLA_SCHEMA "/zuvora.sql"));
        ASSERT_TRUE(schema.open(QIODevice::ReadOnly));
        esegui(u"PRAGMA synchronous=OFF; BEGIN; "_s + QString::fromUtf8(schema.readAll()) + u"; COMMIT;"_s);
    }
    void TearDown() override { sqlite3_close(m_db); }

    QString cartella() const { return m_cartella.path(); }
    void esegui(const QString &sql) {
        char *errore = nullptr;
        const int esito = sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, &errore);
        ASSERT_EQ(esito, SQLITE_OK) << (errore ? errore : "") << sql.toStdString();
    }
    // Rows of a query; each value as an SQL literal, so that types and Null show.
    QStringList interroga(const QString &sql) {
        QStringList righe;
        sqlite3_stmt *s = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &s, nullptr), SQLITE_OK) << sql.toStdString();
        while (sqlite3_step(s) == SQLITE_ROW) {
            QStringList valori;
            for (int c = 0; c < sqlite3_column_count(s); ++c) {
                const auto *t = reinterpret_cast<const char *>(sqlite3_column_text(s, c));
                valori.append(t ? QString::fromUtf8(t) : u"NULL"_s);
            }
            righe.append(valori.join(u'|'));
        }
        sqlite3_finalize(s);
        return righe;
    }
    QString valore(const QString &tabella, int riga, const QString &colonna) {
        return interroga(u"select [%1] from %2 where rowid=%3"_s.arg(colonna, tabella).arg(riga)).value(0);
    }
    void imposta(const QString &tabella, int riga, const QString &colonna, const QString &sql) {
        esegui(u"update %1 set [%2]=%3 where rowid=%4"_s.arg(tabella, colonna, sql).arg(riga));
    }
    // Every column of every row.
    QStringList tabella(const QString &nome) { return interroga(u"select * from "_s + nome); }
    // Rows with nothing but their description.
    void righeVuote(const QString &tabella, int quante = righeLayout) {
        esegui(u"with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
               "insert into %2(DescCampo) select 'riga '||i from n"_s.arg(quante)
                   .arg(tabella));
    }
    Recordset &apri(Data &dato, const QString &sorgente) const { return zuvora::apri(dato, cartella(), sorgente); }

private:
    QTemporaryDir m_cartella;
    sqlite3 *m_db = nullptr;
};

} // namespace zuvora::prova
