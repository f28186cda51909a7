#pragma once

#include "shell/host/ElenchiFile.h"

namespace zuvora {

// Drive, folder and file lists wired as one: each follows the one before it.
class SceltaFile : public QObject {
    Q_OBJECT
public:
    // The lists must outlive this. It starts in the current folder of the process.
    SceltaFile(DriveListBox &dischi, DirListBox &cartelle, FileListBox &file, const QString &modello);
    // Goes to a folder; false, and nothing changes, when it can't be reached.
    bool setPath(const QString &cartella);
    QString percorso() const; // of the chosen file, native form; empty without one

Q_SIGNALS:
    void rifiutato(); // the drive that was picked can't be read; the lists stay as they were

private:
    void segui();
    DriveListBox &m_dischi;
    DirListBox &m_cartelle;
    FileListBox &m_file;
};

} // namespace zuvora
