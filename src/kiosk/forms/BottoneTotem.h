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
    // Draws the face for the size that the button is about to take: with this done beforehand, showing it costs what a
    // picture costs.
    void prepara(QSize misura);
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
    void dipingiFaccia(QPainter &pittore, QSize misura) const;

    QString m_caption;
    QFont m_font;
    QColor m_colore = Qt::black;
    QPixmap m_faccia; // plate and name; the corners let the background through
};

} // namespace zuvora
