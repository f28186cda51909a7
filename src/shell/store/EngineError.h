#pragma once

#include <QString>
#include <exception>

namespace zuvora {

// The engine's failure numbers that the program tells apart. The sibling programs know the same numbers.
enum class Errore : int {
    PercorsoFile = 75,            // path/file access error
    PercorsoNonTrovato = 76,      // path not found
    GiaAperto = 3006,             // the database is held exclusively by another process
    TabellaNonTrovata = 3078,     // no such table
    ModificaNonIniziata = 3020,   // Update without Edit or AddNew
    NessunRecord = 3021,          // no current record
    FileNonTrovato = 3024,        // the database file does not exist
    DiscoPieno = 3026,            // not enough space on disk
    SolaLettura = 3027,           // database, object or record set is read-only
    DiscoRete = 3043,             // disk or network error while reading or writing
    PercorsoNonValido = 3044,     // the folder of the database is not a valid path
    FileDanneggiato = 3049,       // the file can't be opened or its content is damaged
    Accesso = 3051,               // no permission to open the file
    SelezioneInEsecuzione = 3065, // Execute was given a select
    Sintassi = 3075,              // the SQL text or criterion is not well formed
    Bloccato = 3260,              // locked by another process longer than the store waits
    ColonnaNonTrovata = 3265,     // no such column (or no such item in a collection)
    NonDatabase = 3343,           // the file is not a database
    ColonnaGiaPresente = 3380,    // a column of that name exists already
    TipoNonValido = 3421,         // a value can't be converted to the column's type
    Altro = 3000                  // anything else the engine reports
};

// A failure of the store: the engine's number, an Italian sentence for the user (what failed and what to do) and the
// engine's own technical text. what() gives sentence and technical text in UTF-8.
class EngineError : public std::exception {
public:
    EngineError(Errore numero, QString frase, QString dettaglio = {});
    ~EngineError() override;

    Errore numero() const noexcept { return m_numero; }
    int Number() const noexcept { return static_cast<int>(m_numero); }
    const QString &frase() const noexcept { return m_frase; }
    const QString &dettaglio() const noexcept { return m_dettaglio; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    Errore m_numero;
    QString m_frase;
    QString m_dettaglio;
    QByteArray m_what;
};

// A failure as every window tells it: the sentence, what the window adds to it, the engine's number and own text.
QString testoErrore(const EngineError &errore, const QString &aggiunta = {});

// A text that came from outside, short enough for a message: its middle gives way to an ellipsis.
QString accorciato(const QString &testo, int massimo = 160);

} // namespace zuvora
