#pragma once

#include "shell/host/Elenco.h"
#include "shell/host/Volumi.h"

#include <QComboBox>
#include <QTreeWidget>

namespace zuvora {

// The lists by which a user walks the disks of the machine. Folders and files come in native form; a folder that can't
// be read shows as empty, one that doesn't answer within two seconds too.

// The drives of the machine. It looks for new ones each time it is opened.
class DriveListBox : public Controllo<QComboBox> {
    Q_OBJECT
public:
    DriveListBox(QWidget *padre, const char *nome, const Posto &posto,
                 std::shared_ptr<const SistemaFile> sistema = std::make_shared<SistemaLocale>());
    QString Drive() const; // the root folder of the chosen one
    // Chooses the drive that holds the folder; emits nothing.
    void setDrive(const QString &cartella);
    void Refresh();

    void showPopup() override;

Q_SIGNALS:
    void cambiato(); // the user chose a drive

private:
    std::shared_ptr<const SistemaFile> m_sistema;
    QList<Volume> m_volumi;
};

// The current folder between the folders above it and those in it. Double click and Enter go into a folder, Backspace
// goes to the one above.
class DirListBox : public Controllo<QTreeWidget> {
    Q_OBJECT
public:
    DirListBox(QWidget *padre, const char *nome, const Posto &posto,
               std::shared_ptr<const SistemaFile> sistema = std::make_shared<SistemaLocale>());
    const QString &Path() const { return m_percorso; } // empty before the first setPath
    // Goes to a folder; false, and nothing changes, when it is none or doesn't answer. Emits `cambiato` when the folder
    // is another.
    bool setPath(const QString &cartella);
    void Refresh();
    int ListCount() const;          // folders in the current one
    QString List(int indice) const; // full path
    const QStringList &file() const { return m_contenuto.file; }

Q_SIGNALS:
    void cambiato();

protected:
    void keyPressEvent(QKeyEvent *e) override;
    void drawBranches(QPainter *, const QRect &, const QModelIndex &) const override {} // nothing folds here

private:
    void entra(const QTreeWidgetItem *voce);
    void disponi();
    std::shared_ptr<const SistemaFile> m_sistema;
    Contenuto m_contenuto;
    QTreeWidgetItem *m_corrente = nullptr;
    QString m_percorso;
};

// The files of a folder that match a pattern, in order of name.
class FileListBox : public Elenco {
    Q_OBJECT
public:
    FileListBox(QWidget *padre, const char *nome, const Posto &posto,
                std::shared_ptr<const SistemaFile> sistema = std::make_shared<SistemaLocale>());
    void setPattern(const QString &modello); // "*.jpg;*.bmp", in any case
    void setPath(const QString &cartella);
    // The same, for one who has read the folder already.
    void mostra(const QString &cartella, const QStringList &file);
    const QString &Path() const { return m_percorso; }
    void Refresh(); // reads the folder; no file is chosen afterwards
    // Folder and name together; empty when there is no such line.
    QString percorso(int indice) const;

private:
    void riempi();
    std::shared_ptr<const SistemaFile> m_sistema;
    QString m_percorso;
    QStringList m_modelli;
    QStringList m_tutti;
};

} // namespace zuvora
