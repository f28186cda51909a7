#pragma once

#include "shell/store/Limiti.h"
#include "shell/store/Recordset.h"

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

namespace zuvora {

// The binding of a form: a database file and a record source (a table name or SQL text, run unchanged). A table
// without ORDER BY comes in stored order.
class Data {
public:
    Data();
    ~Data();
    Data(const Data &) = delete;
    Data &operator=(const Data &) = delete;

    QString DatabaseName;
    QString RecordSource;
    std::chrono::milliseconds attesa = attesaBlocco; // how long to wait for another program's lock; read by Refresh
    int limite = righeMassime;                       // how many rows the form can show; read by Refresh

    // Opens the record set anew on the two and places it on the first record. On failure throws EngineError and leaves
    // no record set open. Never creates a file.
    void Refresh();
    bool aperto() const;
    // The open record set; 3021 before the first Refresh.
    zuvora::Recordset &Recordset();
    // Calls `ascoltatore` after each Refresh, so that a bound list fills itself again; after a failed one too, when
    // nothing is open and the list has to empty itself. Any number of lists; each is forgotten when it goes.
    void seAggiornato(const QObject &lista, std::function<void()> ascoltatore);

private:
    struct Interno;
    std::unique_ptr<Interno> m_interno;
};

// The path of the settings database in the application folder, in the platform's form.
QString percorsoArchivio(const QString &cartella);

// The three steps that begin every access to the settings database: file, source, refresh.
// `cartella` is the application folder; the file is Zuvora.mdb in it.
zuvora::Recordset &apri(Data &dato, const QString &cartella, const QString &sorgente);

} // namespace zuvora
