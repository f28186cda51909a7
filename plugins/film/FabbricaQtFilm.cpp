#include "film/FabbricaQtFilm.h"

#include "film/LettoreQt.h"

#include <QDir>
#include <QLibraryInfo>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QLatin1StringView fileDecodificatore{"multimedia/libffmpegmediaplugin.so"};

} // namespace

// The other decoder that comes with Qt, its default, ends the program where parts of it are not installed.
FabbricaQtFilm::FabbricaQtFilm() {
    qputenv("QT_MEDIA_BACKEND", "ffmpeg");
}

std::unique_ptr<Lettore> FabbricaQtFilm::crea(QWidget *padre) {
    const QDir componenti(QLibraryInfo::path(QLibraryInfo::PluginsPath));
    if (!componenti.exists(fileDecodificatore))
        return nullptr;
    return std::make_unique<LettoreQt>(padre);
}

} // namespace zuvora
