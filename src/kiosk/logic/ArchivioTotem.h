#pragma once

#include "shell/logic/Domanda.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <QString>
#include <variant>

namespace zuvora {

class Percorsi;

// The native path of a file in the kiosk's folder, whether it is there or not. Asks the disk, and may block.
QString fileTotem(const Percorsi &percorsi, const QString &cartellaTotem, QStringView nome);

// True for the failures that mean a database's folder or file isn't there.
bool percorsoMancante(Errore numero);

// Whether the kiosk's database can be opened: false when its folder or file is missing. Any other failure (locked,
// damaged, foreign) counts as reached: the forms that use the file tell it. Blocks as long as the disk does.
bool totemRaggiungibile(const QString &archivio);

// The same off the thread, for a folder as the row has it: the answer comes within 5 s, and not at all when `ricevente`
// is gone.
void provaTotem(const Percorsi &percorsi, const QString &cartellaTotem, QObject &ricevente,
                std::function<void(bool)> risposta);

// The failure of a kiosk that doesn't answer. What was asked of it may still happen later.
EngineError totemMuto();

// Runs a piece of work on the kiosk's files off the thread and waits for it: a kiosk that doesn't answer gives
// totemMuto in 5 s. The work must own what it uses. Throws EngineError.
template <class T> T alTotem(std::function<T()> lavoro) {
    using Esito = std::variant<T, EngineError>;
    const std::function<Esito()> domanda = [lavoro = std::move(lavoro)]() -> Esito {
        try {
            return lavoro();
        } catch (const EngineError &e) {
            return e;
        }
    };
    const auto esito = chiediEAspetta(domanda, std::chrono::seconds(5));
    if (!esito)
        throw totemMuto();
    if (const auto *errore = std::get_if<EngineError>(&*esito))
        throw *errore;
    return std::get<T>(*esito);
}

} // namespace zuvora
