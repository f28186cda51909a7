#pragma once

#include "shell/store/Database.h"

#include <QStringList>

namespace zuvora::installa {

// The paths in the rows of an old installation, turned to the new one.
class PercorsiVecchi {
public:
    // `nuova` is the installation's folder (absolute), `preparazione` the folder in which it is being put together.
    PercorsiVecchi(QString nuova, QString preparazione);

    // Finds from the rows where the old program lay, in each form in which they name it.
    void impara(Database &zuvora);
    // Turns the paths below the old folder whose file exists in the new one; gives a line for each of the others that
    // points nowhere.
    QStringList volta(Database &zuvora);
    // One path: the new one, or the same when it isn't below the old folder or nothing is there.
    QString voltato(const QString &percorso, bool rete) const;

private:
    QStringList m_radici; // folded, with slashes, without a trailing one
    QString m_nuova;
    QString m_preparazione;
};

} // namespace zuvora::installa
