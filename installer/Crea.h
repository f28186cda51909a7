#pragma once

#include <QString>

namespace zuvora::installa {

struct OpzioniCrea {
    QString cartella;         // of the new installation; made, with its parents, when it isn't there
    bool esempio = false;     // with sample content
    QString notizie;          // address of the news source; empty: that of the start rows
    bool conProgramma = true; // with the program, its plugins and this tool; without them only the data is made
    // Folder of the program, its plugins and the picture folders. Empty: the folder of the running executable.
    QString origine;
};

struct Esito {
    bool riuscito;
    QString messaggio; // an Italian sentence: what was made, or why nothing was
};

// Makes a complete installation. It appears whole, Zuvora.mdb last, or not at all: after a failure or a refusal the
// folder, and whether it exists, is as it was. Refused: a folder that isn't new or empty. Never throws.
Esito creaInstallazione(const OpzioniCrea &opzioni);

// Puts what every installation has besides its databases into `destinazione`: the program unless the options say
// otherwise, pictures, sounds and texts. Throws Guasto.
void preparaCorredo(const QString &destinazione, const OpzioniCrea &opzioni);

} // namespace zuvora::installa
