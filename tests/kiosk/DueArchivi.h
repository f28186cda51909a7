#pragma once

#include "shell/store/EngineError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

// Readable failures.
inline void PrintTo(const QString &s, std::ostream *os) {
    *os << '"' << s.toStdString() << '"';
}

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

    // Runs SQL; gives the rows of the last query, columns parted by a bar, texts in quotes.
    static QStringList esegui(const QString &archivio, const QString &sql) {
        sqlite3 *db = nullptr;
        EXPECT_EQ(sqlite3_open_v2(archivio.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
        QStringList righe;
        char *errore = nullptr;
        sqlite3_exec(
            db, sql.toUtf8().constData(),
            [](void *dove, int quante, char **valori, char **) {
                QStringList riga;
                for (int i = 0; i < quante; ++i)
                    riga << (valori[i] == nullptr ? u"NULL"_s : QString::fromUtf8(valori[i]));
                *static_cast<QStringList *>(dove) << riga.join(u'|');
                return 0;
            },
            &righe, &errore);
        EXPECT_EQ(errore, nullptr) << errore;
        sqlite3_free(errore);
        sqlite3_close(db);
        return righe;
    }

private:
    static void crea(const QString &archivio, const QString &schema) {
        QFile file(QStringLiteral(CARTELLA_SCHEMA "/") + schema);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QFile nuovo(archivio);
        ASSERT_TRUE(nuovo.open(QIODevice::WriteOnly));
        nuovo.close();
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
