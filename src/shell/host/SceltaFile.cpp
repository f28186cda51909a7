#include "shell/host/SceltaFile.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

void nomina(QWidget &lista, const QString &nome) {
    if (lista.accessibleName().isEmpty())
        lista.setAccessibleName(nome);
}

} // namespace

SceltaFile::SceltaFile(DriveListBox &dischi, DirListBox &cartelle, FileListBox &file, const QString &modello)
    : m_dischi(dischi), m_cartelle(cartelle), m_file(file) {
    nomina(dischi, u"Disco"_s);
    nomina(cartelle, u"Cartelle"_s);
    nomina(file, u"File"_s);
    file.setPattern(modello);
    connect(&dischi, &DriveListBox::cambiato, this, [this] {
        if (m_cartelle.setPath(m_dischi.Drive()))
            return;
        m_dischi.setDrive(m_cartelle.Path());
        Q_EMIT rifiutato();
    });
    connect(&cartelle, &DirListBox::cambiato, this, &SceltaFile::segui);
    if (!setPath(QDir::currentPath()))
        setPath(QDir::rootPath());
}

bool SceltaFile::setPath(const QString &cartella) {
    return m_cartelle.setPath(cartella);
}

QString SceltaFile::percorso() const {
    return m_file.percorso(m_file.ListIndex());
}

void SceltaFile::segui() {
    m_dischi.setDrive(m_cartelle.Path());
    m_file.mostra(m_cartelle.Path(), m_cartelle.file());
}

} // namespace zuvora
