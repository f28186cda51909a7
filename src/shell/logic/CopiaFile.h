#pragma once

#include "shell/logic/Avanzamento.h"

#include <QString>

namespace zuvora {

// The name of a picked file, with whatever extension it has. Empty for an empty path.
QString FileScelto(const QString &percorso);

// What a copy would meet at its place.
enum class Incontro {
    Nessuno,  // nothing
    LoStesso, // the very file, or one of the same content: nothing to copy
    Diverso,  // another file, which the copy would replace
    Impedito  // something that is no file
};
// Reads both files where it has to.
Incontro incontroCopia(const QString &origine, const QString &destinazione, const Avanzamento &avanzamento);

// A file's copy that waits under a temporary name to be put in its place. It goes with this object until it is there.
class CopiaPreparata {
    Q_DISABLE_COPY_MOVE(CopiaPreparata)
public:
    // Writes the copy to the new file `temporaneo`, in a folder of its own that is made, on the disk of its later
    // place. It is on the disk when this returns.
    CopiaPreparata(const QString &origine, const QString &temporaneo, Avanzamento &avanzamento);
    ~CopiaPreparata();

    // Why there is no copy; empty when it stands ready.
    const QString &motivo() const { return m_motivo; }
    // Puts the copy in its place, over the file that may stand there; when this returns it is known by that name on the
    // disk. Gives an Italian sentence when that failed or there is no copy, else an empty text.
    QString colloca(const QString &destinazione);

private:
    QString scrivi(const QString &origine, Avanzamento &avanzamento) const;
    void togli() const;

    QString m_temporaneo;
    QString m_motivo;
};

// What `colloca` does, for a copy that is found without its object.
QString collocaFile(const QString &temporaneo, const QString &destinazione);

} // namespace zuvora
