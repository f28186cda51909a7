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
    // The font in which the name finds room on the face: the set one, or smaller.
    QFont fontMostrato() const;

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    QRect spazio() const;
    bool entra(const QFont &font, int opzioni) const;
    void dimentica();
    void dipingiFaccia(QPainter &pittore) const;

    QString m_caption;
    QFont m_font;
    QColor m_colore = Qt::black;
    QPixmap m_sfondo;
    // Drawn once and without holes: the window beneath needs no painting, and twenty buttons cost what their part of
    // the picture would.
    QPixmap m_faccia;
};

} // namespace zuvora
