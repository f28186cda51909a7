#pragma once

#include "shell/host/Dialoghi.h"

#include <QTranslator>

namespace zuvora {

// Qt's own dialogs, in Italian. The translation is loaded with the first dialog, not at the program's start.
class QtDialoghi : public Dialoghi {
public:
    void messaggio(QWidget *padre, Icona icona, const QString &titolo, const QString &testo) override;
    std::optional<QString> apriFile(QWidget *padre, const RichiestaFile &richiesta) override;
    std::optional<QString> scegliCartella(QWidget *padre, const QString &titolo) override;
    std::optional<FontScelto> scegliFont(QWidget *padre) override;
    std::optional<int> scegliColore(QWidget *padre, int attuale) override;

private:
    void parlaItaliano();
    QTranslator m_traduzione;
    bool m_caricata = false;
};

// "description|*.a;*.b" pairs as Qt writes filters: "description (*.a *.b)", in both cases of the pattern's letters.
QStringList filtriQt(const QString &filtro);

} // namespace zuvora
