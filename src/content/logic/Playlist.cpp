#include "content/logic/Playlist.h"

#include "shell/logic/FileAtomico.h"
#include "shell/logic/Percorsi.h"
#include "shell/logic/TestoAnsi.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

bool haEstensione(const TipoPlaylist &tipo, const QString &percorso) {
    return percorso.endsWith(tipo.estensione);
}

QString conEstensione(const TipoPlaylist &tipo, const QString &percorso) {
    return percorso.endsWith(tipo.estensione, Qt::CaseInsensitive) ? percorso : percorso + tipo.estensione.toString();
}

bool eContenuto(const TipoPlaylist &tipo, const QString &percorso) {
    return QDir::match(tipo.contenuti.toString().split(u';'), QFileInfo(percorso).fileName());
}

bool vocePresente(const Percorsi &percorsi, const QString &voce) {
    // Nearly every entry is there under the very name: lists of thousands are asked for.
    std::error_code errore;
    const auto stato = std::filesystem::status(QFile::encodeName(voce).toStdString(), errore);
    if (std::filesystem::exists(stato))
        return !std::filesystem::is_directory(stato);
    const Specie specie = percorsi.esamina(voce).specie;
    return specie == Specie::File || specie == Specie::Altro;
}

QString scriviRapporto(const TipoPlaylist &tipo, const QStringList &mancanti) {
    QByteArray testo;
    for (const QString &percorso : mancanti)
        testo += '"' + inAnsi(percorso).value_or(percorso.toUtf8()) + "\"\r\n";
    // Made anew at every load: nothing of it needs to outlive a power cut.
    QFile file(percorsoRapporto(tipo));
    const QFileInfo info(file);
    if (info.exists() && !info.isFile())
        return u"Non è un file di dati."_s;
    errno = 0;
    const bool scritto = file.open(QIODevice::WriteOnly) && file.write(testo) == testo.size() && file.flush();
    return scritto ? QString() : motivoSistema(errno);
}

QString percorsoRapporto(const TipoPlaylist &tipo) {
    return QDir::toNativeSeparators(QDir::current().filePath(tipo.rapporto.toString()));
}

} // namespace zuvora
