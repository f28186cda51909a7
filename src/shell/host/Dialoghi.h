#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class QWidget;

namespace zuvora {

// The title of the message boxes.
inline QString titoloMessaggi() {
    return QStringLiteral("Zuvora-Messaggio");
}

struct FontScelto {
    QString nome;
    double misura = 0; // points
    bool grassetto = false;
    bool italico = false;
};

struct RichiestaFile {
    QString titolo = {}; // empty: the platform's own
    QString filtro = {}; // "description|*.a;*.b|description|*.c", the first entry selected
    QString cartella =
        {}; // first folder, in any form of Percorsi; empty, or one that doesn't answer: the platform's own
    QString proposto = {}; // name of a file to be written
};

struct Scelta {
    QString titolo;
    QString testo;
    QStringList bottoni;
    int predefinito = 0; // indices: what Enter presses, and what Esc and the frame answer
    int sicuro = 0;
};

// Plain message boxes and the dialogs of the platform. Tests put queued answers in its place.
class Dialoghi {
public:
    enum class Icona { Critica, Informazione };

    virtual ~Dialoghi() = default;
    virtual void messaggio(QWidget *padre, Icona icona, const QString &titolo, const QString &testo) = 0;
    // The index of the button that was pressed.
    virtual int scegli(QWidget *padre, const Scelta &scelta) = 0;
    // The chosen file's full path in native form; nothing when cancelled. The same for the next four.
    virtual std::optional<QString> apriFile(QWidget *padre, const RichiestaFile &richiesta) = 0;
    // The user has agreed that a file which is there already gives way.
    virtual std::optional<QString> salvaFile(QWidget *padre, const RichiestaFile &richiesta) = 0;
    // `prima` is the folder where it opens, as in RichiestaFile.
    virtual std::optional<QString> scegliCartella(QWidget *padre, const QString &titolo, const QString &prima = {}) = 0;
    // Without a first font it starts from the program's.
    virtual std::optional<FontScelto> scegliFont(QWidget *padre, const std::optional<FontScelto> &primo = {}) = 0;
    // Colours are whole numbers 0x00BBGGRR.
    virtual std::optional<int> scegliColore(QWidget *padre, int attuale) = 0;
};

} // namespace zuvora
