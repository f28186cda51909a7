#pragma once

#include "installer/copia/Elenco.h"

struct archive;

// The file of a copy. Every operation throws Guasto.
namespace zuvora::installa {

// Writes a compressed archive. Each file is added whole; the list comes last, with chiudi().
class ScrittoreCopia {
public:
    explicit ScrittoreCopia(const QString &file); // must not exist
    ~ScrittoreCopia();
    ScrittoreCopia(const ScrittoreCopia &) = delete;
    ScrittoreCopia &operator=(const ScrittoreCopia &) = delete;

    // Adds the file under that name. A file that grows or shrinks meanwhile is refused.
    void aggiungi(const QString &nome, const QString &daFile);
    // On the disk when this returns. `elenco` is given the files that were added.
    void chiudi(Elenco elenco);

private:
    void testata(const QString &nome, qint64 byte);
    void dati(const char *inizio, qsizetype quanti);
    [[noreturn]] void fallisci();

    QString m_file;
    archive *m_archivio;
    QList<VoceCopia> m_voci;
};

// Reads a copy to its end, checks every file against the list, and puts them into `cartella`, where they must not be;
// an empty one only checks.
Elenco leggiCopia(const QString &file, const QString &cartella = {});

} // namespace zuvora::installa
