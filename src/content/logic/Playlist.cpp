#include "content/logic/Playlist.h"

#include "shell/logic/TestoAnsi.h"

#include <QDir>

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

QString scriviRapporto(const TipoPlaylist &tipo, const QStringList &mancanti) {
    QStringList righe;
    for (const QString &percorso : mancanti)
        righe << u'"' + percorso + u'"';
    return scriviRighe(percorsoRapporto(tipo), righe);
}

QString percorsoRapporto(const TipoPlaylist &tipo) {
    return QDir::toNativeSeparators(QDir::current().filePath(tipo.rapporto.toString()));
}

} // namespace zuvora
