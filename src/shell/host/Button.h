#pragma once

#include "shell/host/Controllo.h"

#include <QPushButton>
#include <QTimer>
#include <memory>

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
    void setFontTesto(const QFont &font);
    void setColori(const QColor &testo, const QColor &sfondo); // instead of the look of its role
    void setRuolo(Ruolo ruolo);
    Ruolo ruolo() const { return m_ruolo; }
    // Marks the button of what is open.
    void setSegnato(bool segnato);
    bool segnato() const { return m_segnato; }
    // A button that is off says why, by its tool tip.
    void abilita(bool acceso, const QString &motivo = {});
    // A save that says nothing shows a tick for two seconds and tells it to screen readers; the caption stays.
    void spunta();
    bool conSpunta() const { return m_spunta.isActive(); }

    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;

private:
    class Gruppo;
    friend void condensaInsieme(const QList<Button *> &gruppo);
    void adatta();
    void dipingiSpunta(QPainter &pittore) const;
    void descrivi(const QString &testo);

    QFont m_base;
    QTimer m_spunta;
    QString m_suggerimento; // tool tip while the button is on
    QString m_descrizione;  // accessible description without the tick
    QColor m_testo;
    QColor m_sfondo;
    Ruolo m_ruolo = Ruolo::Normale;
    std::shared_ptr<Gruppo> m_gruppo; // whose captions are condensed alike
    bool m_sinistra = false;
    bool m_segnato = false;
    bool m_abbreviato = false;
    bool m_disposto = false; // the caption is fitted from the first showing on: measuring is what takes time
};

// Captions that stand together are condensed alike: all as the one that needs it most.
void condensaInsieme(const QList<Button *> &gruppo);

} // namespace zuvora
