#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class QWidget;

namespace zuvora {

struct FontScelto {
    QString nome;
    double misura = 0; // points
    bool grassetto = false;
    bool italico = false;
};

struct RichiestaFile {
    QString titolo;   // empty: the platform's own
    QString filtro;   // "description|*.a;*.b|description|*.c", the first entry selected
    QString cartella; // first folder; empty: the platform's own
};

// Plain message boxes and the dialogs of the platform. Tests put queued answers in its place.
class Dialoghi {
public:
    enum class Icona { Critica, Informazione };

    virtual ~Dialoghi() = default;
    virtual void messaggio(QWidget *padre, Icona icona, const QString &titolo, const QString &testo) = 0;
    // The chosen file's full path in native form; nothing when cancelled. The same for the next three.
    virtual std::optional<QString> apriFile(QWidget *padre, const RichiestaFile &richiesta) = 0;
    // `prima` is the folder where it opens; empty: the platform's own.
    virtual std::optional<QString> scegliCartella(QWidget *padre, const QString &titolo, const QString &prima = {}) = 0;
    // Without a first font it starts from the program's.
    virtual std::optional<FontScelto> scegliFont(QWidget *padre, const std::optional<FontScelto> &primo = {}) = 0;
    // Colours are whole numbers 0x00BBGGRR.
    virtual std::optional<int> scegliColore(QWidget *padre, int attuale) = 0;
};

} // namespace zuvora
