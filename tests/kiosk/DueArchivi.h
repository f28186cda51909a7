#pragma once

#include "kit/Fratello.h"
#include "shell/store/EngineError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zuvora::prova {

using namespace Qt::Literals::StringLiterals;

// A settings database and a kiosk's database with the installed schema, as another program sees them.
class DueArchivi : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(cartella()).mkdir(u"Totem"_s));
        crea(zuvora(), u"zuvora.sql"_s);
        crea(totem(), u"totem.sql"_s);
    }
    QString cartella() const { return m_cartella.path(); }
    QString zuvora() const { return m_cartella.filePath(u"Zuvora.mdb"_s); }
    QString totem() const { return m_cartella.filePath(u"Totem/TotemZuvora.mdb"_s); }

    // Runs SQL; gives the rows of a query, columns parted by a bar.
    static QStringList esegui(const QString &archivio, const QString &sql) {
        Fratello fratello(archivio);
        if (sql.startsWith(u"select"_s, Qt::CaseInsensitive))
            return fratello.righe(sql);
        EXPECT_EQ(fratello.esegui(sql), SQLITE_OK) << sql.toStdString();
        return {};
    }

private:
    static void crea(const QString &archivio, const QString &schema) {
        QFile file(QStringLiteral(CARTELLA_SCHEMA "/") + schema);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        esegui(archivio, u"BEGIN;"_s + QString::fromUtf8(file.readAll()) + u";COMMIT;"_s);
    }
    QTemporaryDir m_cartella;
};

// The number of the failure that an operation ends in, 0 when it succeeds.
template <class F> int numeroErrore(F &&operazione) {
    try {
        operazione();
    } catch (const EngineError &e) {
        return e.Number();
    }
    return 0;
}

} // namespace zuvora::prova
