#pragma once

#include "installer/Contenuto.h"
#include "installer/Verifica.h"
#include "shell/store/Database.h"

#include <QHash>
#include <QSet>
#include <functional>
#include <optional>

namespace zuvora::installa {

// One database of an installation, opened for reading and held against the schema.
class ControlloArchivio {
public:
    ControlloArchivio(const Archivio &archivio, QString file);

    // File, the engine's own check, tables, columns, numbers of rows.
    void controlla();
    // Runs a further check on the open database; not at all when the database can't be read. Failures of the engine
    // become findings.
    void controlla(const std::function<void(Database &)> &altro);

    bool ha(QLatin1StringView tabella, QLatin1StringView colonna) const;
    void segnala(const QString &difetto); // adds a finding on this database
    void annota(const QString &nota);     // adds what is no fault
    const Rapporto &rapporto() const { return m_rapporto; }

private:
    void controllaTabella(const Tabella &tabella, Database &modello);
    void controllaRighe(const Tabella &tabella);
    void controllaVersione();
    bool puoMancare(const Tabella &tabella, const QString &colonna) const;

    const Archivio &m_archivio;
    QString m_file;
    Rapporto m_rapporto;
    bool m_daAggiornare = false;             // an older version: the program adds what it lacks
    QHash<QString, QSet<QString>> m_colonne; // by table, all in lower case
    std::optional<Database> m_db;            // set once the engine's own check has passed
};

} // namespace zuvora::installa
