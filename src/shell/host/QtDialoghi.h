#pragma once

#include "shell/host/Dialoghi.h"

namespace zuvora {

// Qt's own dialogs.
class QtDialoghi : public Dialoghi {
public:
    void messaggio(QWidget *padre, Icona icona, const QString &titolo, const QString &testo) override;
    std::optional<QString> apriFile(QWidget *padre, const RichiestaFile &richiesta) override;
    std::optional<QString> scegliCartella(QWidget *padre, const QString &titolo, const QString &prima) override;
    std::optional<FontScelto> scegliFont(QWidget *padre, const std::optional<FontScelto> &primo) override;
    std::optional<int> scegliColore(QWidget *padre, int attuale) override;
};

// "description|*.a;*.b" pairs as Qt writes filters: "description (*.a *.b)". The dialog finds names in any case.
QStringList filtriQt(const QString &filtro);

} // namespace zuvora
