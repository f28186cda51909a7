#pragma once

#include "installer/copia/Elenco.h"

#include "shell/store/Database.h"

#include <QStringList>

namespace zuvora::installa {

struct DaCopiare {
    QString nome; // in the copy
    QString percorso;
};

// What of an installation belongs into a copy besides its databases: whatever lies in its folder and in the kiosk's but
// for the program and for what the product brings unchanged.
struct Raccolta {
    QList<DaCopiare> file;
    QString totem;     // the kiosk's folder on this machine; empty when it lies elsewhere
    QString nomeTotem; // the kiosk's database in the copy; empty with `totem`
    QStringList fuori; // what playlists and rows name and the copy doesn't hold
};
Raccolta raccogli(const QString &cartella, Database &zuvora);

} // namespace zuvora::installa
