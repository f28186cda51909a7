#include "kit/InstallazioneProva.h"

#include "kit/Fratello.h"
#include "shell/host/Stile.h"
#include "shell/store/NomiFile.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

void copiaCartella(const QString &da, const QString &in) {
    QDirIterator file(da, QDir::Files, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        file.next();
        const QString relativo = QDir(da).relativeFilePath(file.filePath());
        if (relativo.startsWith(u"zuvora"_s) || relativo.endsWith(u".so"_s))
            continue;
        QDir(in).mkpath(QFileInfo(relativo).path());
        std::error_code errore;
        if (!relativo.startsWith(nomi::decorazioni) && !relativo.startsWith(nomi::sfondi))
            errore = std::make_error_code(std::errc::operation_not_supported);
        else // pictures are never written again: another name of the same file will do
            std::filesystem::create_hard_link(file.fileInfo().filesystemFilePath(),
                                              QFileInfo(QDir(in).filePath(relativo)).filesystemFilePath(), errore);
        if (errore)
            QFile::copy(file.filePath(), QDir(in).filePath(relativo));
    }
}

} // namespace

void preparaApplicazione() {
    static int argc = 1;
    static char nome[] = "prova";
    static char *argv[] = {nome, nullptr};
    static auto *applicazione = [] {
        auto *nuova = new QApplication(argc, argv);
        preparaAspetto(*nuova);
        QApplication::setQuitOnLastWindowClosed(false);
        return nuova;
    }();
    Q_UNUSED(applicazione)
}

InstallazioneProva::InstallazioneProva() {
    preparaApplicazione();
    copiaCartella(QStringLiteral(CARTELLA_BASE), m_cartella.path());
    piattaforma.cartella = cartella();
    valori.PercorsoApplicazione = cartella();
    // The rows of the installation that was copied name its own folder.
    QStringList sql{u"BEGIN"_s};
    const QString sostituisci = u"UPDATE %1 SET %2=replace(%2,'%3','%4') WHERE %2 LIKE '%3%'"_s;
    sql << sostituisci.arg(u"ConfigurazioneTotem"_s, u"PercorsoReteTotem"_s, QStringLiteral(CARTELLA_BASE), cartella());
    for (const QString &tabella : righe(u"SELECT name FROM sqlite_schema WHERE name LIKE 'Layout%'"_s))
        sql << sostituisci.arg(tabella, u"PercorsoImmagine"_s, QStringLiteral(CARTELLA_BASE), cartella());
    esegui(sql.join(u';') + u";COMMIT"_s);
}

void InstallazioneProva::esegui(const QString &sql) const {
    Fratello(archivio()).esegui(sql);
}

QVariant InstallazioneProva::valore(const QString &sql) const {
    return Fratello(archivio()).valore(sql);
}

QStringList InstallazioneProva::righe(const QString &sql) const {
    return Fratello(archivio()).righe(sql);
}

QByteArray InstallazioneProva::contenuto() const {
    QFile f(archivio());
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace zuvora
