#pragma once

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

namespace zuvora::installa {

// Where an installation is put together: a hidden folder inside its own, so that the moves at the end stay on one file
// system. The installation appears whole, Zuvora.mdb last, or not at all: until pubblica() has returned, everything is
// taken back at the end, folders made for it too. What a killed process left is cleared by the next one.
class Cantiere {
public:
    // Refuses, changing nothing, a folder that isn't new or empty, or in which another process is at work. Throws
    // Guasto.
    explicit Cantiere(const QString &cartella);
    ~Cantiere();
    Cantiere(const Cantiere &) = delete;
    Cantiere &operator=(const Cantiere &) = delete;

    // The folder to fill; each of its entries becomes one of the installation.
    QString preparazione() const { return m_preparazione->path(); }
    // On the disk when this returns.
    void pubblica();

private:
    void creaCartelle();
    void disfa();

    QString m_cartella;
    QStringList m_aggiunte; // folders made for it, innermost first
    QStringList m_spostate; // entries of the installation that are in their place
    std::unique_ptr<QLockFile> m_guardia;
    std::unique_ptr<QTemporaryDir> m_preparazione;
};

} // namespace zuvora::installa
