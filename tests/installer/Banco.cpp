#include "installer/Banco.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

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
    zuvora::Fratello fratello(archivio);
    if (istruzione.startsWith(u"select"_s, Qt::CaseInsensitive) || istruzione.contains(u" RETURNING "_s))
        return fratello.valore(istruzione).toString();
    EXPECT_EQ(fratello.esegui(istruzione), SQLITE_OK) << istruzione.toStdString();
    return {};
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
