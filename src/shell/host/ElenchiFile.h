#pragma once

#include "shell/host/Controllo.h"

#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>

namespace zuvora {

// The lists by which a user walks the disks of the machine. Folders and files come in native form; a folder that can't
// be read shows as empty.

// The drives of the machine. It looks for new ones each time it is opened.
class DriveListBox : public Controllo<QComboBox> {
    Q_OBJECT
public:
    DriveListBox(QWidget *padre, const char *nome, const Posto &posto);
    QString Drive() const; // the root folder of the chosen one
    // Chooses the drive that holds the folder; emits nothing.
    void setDrive(const QString &cartella);
    void Refresh();

    void showPopup() override;

Q_SIGNALS:
    void cambiato(); // the user chose a drive
};

// The current folder between the folders above it and those in it. Double click and Enter go into a folder, Backspace
// goes to the one above.
class DirListBox : public Controllo<QTreeWidget> {
    Q_OBJECT
public:
    DirListBox(QWidget *padre, const char *nome, const Posto &posto);
    const QString &Path() const { return m_percorso; } // empty before the first setPath
    // Goes to a folder; false, and nothing changes, when it is none. Emits `cambiata` when the folder is another.
    bool setPath(const QString &cartella);
    void Refresh();
    int ListCount() const;          // folders in the current one
    QString List(int indice) const; // full path

Q_SIGNALS:
    void cambiata();

protected:
    void keyPressEvent(QKeyEvent *e) override;
    void drawBranches(QPainter *, const QRect &, const QModelIndex &) const override {} // nothing folds here

private:
    void entra(const QTreeWidgetItem *voce);
    QTreeWidgetItem *m_corrente = nullptr;
    QString m_percorso;
};

// The files of a folder that match a pattern, in order of name.
class FileListBox : public Controllo<QListWidget> {
    Q_OBJECT
public:
    FileListBox(QWidget *padre, const char *nome, const Posto &posto);
    void setPattern(const QString &modello); // "*.jpg;*.bmp", in any case
    void setPath(const QString &cartella);
    const QString &Path() const { return m_percorso; }
    void Refresh(); // no file is chosen afterwards
    int ListCount() const { return count(); }
    int ListIndex() const { return currentRow(); } // -1 without a chosen file
    QString List(int indice) const;                // the file's name
    // Folder and name together; empty when there is no such line.
    QString percorso(int indice) const;

Q_SIGNALS:
    void cliccato(); // a file was clicked or reached with the keyboard

protected:
    void mousePressEvent(QMouseEvent *e) override;
    void currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) override;

private:
    QString m_percorso;
    QStringList m_modelli;
    bool m_riempimento = false;
    bool m_segnalato = false; // the press under way has chosen another file and said so
};

} // namespace zuvora
