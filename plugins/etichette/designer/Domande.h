#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace zuvora {

// Everything that the designer asks of its user besides its own windows: tests answer in their place.
class Domande {
public:
    enum class Risposta { Si, No, Annulla };

    virtual ~Domande() = default;
    virtual void avvisa(QWidget *padre, const QString &testo) = 0;
    // Yes and no; `sicura` is the answer that loses nothing, and the one of Enter and Esc.
    virtual bool conferma(QWidget *padre, const QString &testo, bool sicura) = 0;
    // Save, leave unsaved, or stay.
    virtual Risposta salvare(QWidget *padre, const QString &testo) = 0;
    virtual std::optional<QString> apriFile(QWidget *padre, const QString &titolo, const QString &filtro) = 0;
    virtual std::optional<QString> salvaFile(QWidget *padre, const QString &titolo, const QString &proposto,
                                             const QString &filtro) = 0;
};

class DomandeQt : public Domande {
public:
    void avvisa(QWidget *padre, const QString &testo) override;
    bool conferma(QWidget *padre, const QString &testo, bool sicura) override;
    Risposta salvare(QWidget *padre, const QString &testo) override;
    std::optional<QString> apriFile(QWidget *padre, const QString &titolo, const QString &filtro) override;
    std::optional<QString> salvaFile(QWidget *padre, const QString &titolo, const QString &proposto,
                                     const QString &filtro) override;
};

} // namespace zuvora
