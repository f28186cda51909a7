#pragma once

#include "shell/host/Dialoghi.h"
#include "shell/logic/Percorsi.h"

namespace zuvora {

// Qt's own dialogs.
class QtDialoghi : public Dialoghi {
public:
    explicit QtDialoghi(Percorsi percorsi = Percorsi()) : m_percorsi(std::move(percorsi)) {}
    void messaggio(QWidget *padre, Icona icona, const QString &titolo, const QString &testo) override;
    int scegli(QWidget *padre, const Scelta &scelta) override;
    std::optional<QString> apriFile(QWidget *padre, const RichiestaFile &richiesta) override;
    std::optional<QString> salvaFile(QWidget *padre, const RichiestaFile &richiesta) override;
    std::optional<QString> scegliCartella(QWidget *padre, const QString &titolo, const QString &prima) override;
    std::optional<FontScelto> scegliFont(QWidget *padre, const std::optional<FontScelto> &primo) override;
    std::optional<int> scegliColore(QWidget *padre, int attuale) override;

private:
    QString primaCartella(const QString &chiesta) const;
    Percorsi m_percorsi;
};

// "description|*.a;*.b" pairs as Qt writes filters: "description (*.a *.b)". The dialog finds names in any case.
QStringList filtriQt(const QString &filtro);

} // namespace zuvora
