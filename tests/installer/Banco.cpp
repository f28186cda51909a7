#include "installer/Banco.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <sqlite3.h>

namespace prova {
using namespace Qt::Literals::StringLiterals;

QString Banco::percorso(const QString &nome) const {
    return m_cartella.filePath(nome);
}

QString Banco::modello() {
    const QFileInfo memoria(u"/dev/shm"_s);
    return (memoria.isWritable() ? memoria.filePath() : QDir::tempPath()) + u"/prova-XXXXXX"_s;
}

QString Banco::impianto(bool esempio) {
    const QString cartella = percorso(u"impianto"_s);
    const auto esito = zuvora::installa::creaInstallazione(opzioni(cartella, esempio));
    EXPECT_TRUE(esito.riuscito) << qPrintable(esito.messaggio);
    return cartella;
}

void Banco::scrivi(const QString &nome, const QByteArray &contenuto) const {
    QDir().mkpath(QFileInfo(percorso(nome)).path());
    QFile file(percorso(nome));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contenuto) == contenuto.size());
}

zuvora::installa::OpzioniCrea opzioni(const QString &cartella, bool esempio) {
    return {cartella, esempio, {}, false, QFileInfo(QStringLiteral(ZUVORA_INSTALLA)).path()};
}

QString sql(const QString &archivio, const QString &istruzione) {
    sqlite3 *db = nullptr;
    EXPECT_EQ(sqlite3_open_v2(archivio.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
    QString primo;
    const auto prendi = [](void *dove, int, char **valori, char **) {
        auto &testo = *static_cast<QString *>(dove);
        if (testo.isNull())
            testo = QString::fromUtf8(valori[0]);
        return 0;
    };
    char *errore = nullptr;
    EXPECT_EQ(sqlite3_exec(db, istruzione.toUtf8().constData(), prendi, &primo, &errore), SQLITE_OK)
        << (errore ? errore : "");
    sqlite3_free(errore);
    sqlite3_close(db);
    return primo;
}

QByteArray leggi(const QString &nome) {
    QFile file(nome);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QByteArray> istantanea(const QString &cartella) {
    QMap<QString, QByteArray> voci;
    QDirIterator it(cartella, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString voce = it.next();
        const QString nome = voce.mid(cartella.size());
        if (it.fileInfo().isDir())
            voci.insert(nome + u'/', {});
        else
            voci.insert(nome, leggi(voce));
    }
    return voci;
}

} // namespace prova
