#pragma once

#include "shell/disegni/Disegni.h"
#include "shell/host/Controllo.h"

#include <QPixmap>
#include <QPushButton>
#include <memory>
#include <optional>

namespace zuvora {

// What a button is for. The main action is what Enter does in a text box; it stands out, and so does one that destroys.
enum class Ruolo { Normale, Principale, Distruttivo };

class Button : public Controllo<QPushButton>, public ConDidascalia {
    Q_OBJECT
public:
    Button(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    void setCaption(const QString &testo);
    QString Caption() const { return text(); }
    void allineaASinistra(); // for the menu: captions stand behind one another
    // Before a caption on the left, where both find room.
    void setDisegno(Disegno disegno);
    void setFontTesto(const QFont &font);
    void setColori(const QColor &testo, const QColor &sfondo); // instead of the look of its role
    void setRuolo(Ruolo ruolo);
    Ruolo ruolo() const { return m_ruolo; }
    // Marks the button of what is open.
    void setSegnato(bool segnato);
    bool segnato() const { return m_segnato; }
    // A button that is off says why, by its tool tip.
    void abilita(bool acceso, const QString &motivo = {});

    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void changeEvent(QEvent *e) override;

private:
    class Gruppo;
    friend void condensaInsieme(const QList<Button *> &gruppo);
    void adatta();
    void dipingiDisegno(QPainter &pittore);

    QFont m_base;
    QString m_suggerimento; // tool tip while the button is on
    QColor m_testo;
    QColor m_sfondo;
    Ruolo m_ruolo = Ruolo::Normale;
    std::shared_ptr<Gruppo> m_gruppo; // whose captions are condensed alike
    std::optional<Disegno> m_disegno;
    QPixmap m_dipinto; // as it stood last, for the same screen and state
    bool m_conDisegno = false;
    bool m_sinistra = false;
    bool m_segnato = false;
    bool m_abbreviato = false;
    bool m_disposto = false; // the caption is fitted from the first showing on: measuring is what takes time
};

// Captions that stand together are condensed alike: all as the one that needs it most.
void condensaInsieme(const QList<Button *> &gruppo);

} // namespace zuvora
