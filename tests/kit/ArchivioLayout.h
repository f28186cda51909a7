#pragma once

#include "designer/logic/DisplayLayout.h"
#include "designer/logic/ImmaginiQt.h"
#include "kit/Fratello.h"
#include "shell/store/Data.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <optional>

namespace zuvora::prova {

using namespace Qt::Literals::StringLiterals;

// Takes every picture but those it is told to miss.
class FinteImmagini final : public CaricatoreImmagini {
public:
    bool carica(const QString &percorso) override { return !mancanti.contains(percorso); }
    QSet<QString> mancanti;
};

// A settings database with the installed schema, as another program sees it.
class ArchivioLayout : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_cartella.isValid());
        m_fratello.emplace(m_cartella.filePath(u"Zuvora.mdb"_s));
        QFile schema(QStringLiteral(CARTELLA_SCHEMA "/zuvora.sql"));
        ASSERT_TRUE(schema.open(QIODevice::ReadOnly));
        esegui(u"BEGIN; "_s + QString::fromUtf8(schema.readAll()) + u"; COMMIT;"_s);
    }

    QString cartella() const { return m_cartella.path(); }
    void esegui(const QString &sql) { ASSERT_EQ(m_fratello->esegui(sql), SQLITE_OK) << sql.toStdString(); }
    QStringList interroga(const QString &sql) { return m_fratello->righe(sql); }
    QString valore(const QString &tabella, int riga, const QString &colonna) {
        return interroga(u"select [%1] from %2 where rowid=%3"_s.arg(colonna, tabella).arg(riga)).value(0);
    }
    void imposta(const QString &tabella, int riga, const QString &colonna, const QString &sql) {
        esegui(u"update %1 set [%2]=%3 where rowid=%4"_s.arg(tabella, colonna, sql).arg(riga));
    }
    // Every column of every row.
    QStringList tabella(const QString &nome) { return interroga(u"select * from "_s + nome); }
    // Rows with nothing but their description.
    void righeVuote(const QString &tabella) {
        esegui(u"with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
               "insert into %2(DescCampo) select 'riga '||i from n"_s.arg(righeLayout)
                   .arg(tabella));
    }
    Recordset &apri(Data &dato, const QString &sorgente) const { return zuvora::apri(dato, cartella(), sorgente); }

private:
    QTemporaryDir m_cartella;
    std::optional<Fratello> m_fratello;
};

} // namespace zuvora::prova
