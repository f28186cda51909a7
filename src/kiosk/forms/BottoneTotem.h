#pragma once

#include "shell/host/Controllo.h"

#include <QColor>
#include <QPixmap>

namespace zuvora {

// A service's button as a kiosk shows it: a large face with the name in its middle, wrapped and never cut. It has no
// action.
class BottoneTotem : public Controllo<QWidget> {
    Q_OBJECT
public:
    BottoneTotem(QWidget *padre, const char *nome, const QString &didascalia, const Posto &posto);
    void setCaption(const QString &testo);
    const QString &Caption() const { return m_caption; }
    void setFontTesto(const QFont &font);
    void setColoreTesto(const QColor &colore);
    // The picture of the window behind, from the window's corner on: it is seen beside the rounded corners.
    void setSfondo(const QPixmap &sfondo);
    // Draws what doesn't depend on the background, for the size that the button is about to take: with this done
    // beforehand, showing it costs what a picture costs.
    void prepara(QSize misura);
    // The same of the whole face, at the size that the button has.
    void componi();
    // The font in which the name finds room on the face: the set one, or smaller.
    QFont fontMostrato() const;

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    static QRect spazio(QSize misura);
    bool entra(const QFont &font, int opzioni, QSize misura) const;
    QFont fontPer(QSize misura) const;
    QSize pixel(QSize misura) const;
    void dimentica();
    void dipingiFronte(QPainter &pittore, QSize misura) const;

    QString m_caption;
    QFont m_font;
    QColor m_colore = Qt::black;
    QPixmap m_sfondo;
    QPixmap m_fronte; // plate and name; the corners let the background through
    // Drawn once and without holes: the window beneath needs no painting, and twenty buttons cost what their part of
    // the picture would.
    QPixmap m_faccia;
};

} // namespace zuvora
