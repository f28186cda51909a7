#pragma once

#include "installer/copia/Elenco.h"

#include "shell/store/Database.h"

#include <utility>

namespace zuvora::installa {

// Paths of a saved installation turned to where it will lie: native ones, with a drive, and of the network.
class Svolta {
public:
    Svolta(const Elenco &elenco, const QString &nuova);
    QString voltato(const QString &percorso) const; // the same when it isn't below the saved folders
    void volta(Database &db) const;                 // every text of every table
    void voltaPlaylist(const QString &file) const;

private:
    void aggiungi(const QString &vecchia, const QString &macchina, const QString &nuova);
    QList<std::pair<QString, QString>> m_coppie;
};

} // namespace zuvora::installa
