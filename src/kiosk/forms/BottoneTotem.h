#pragma once

#include "shell/host/Controllo.h"

#include <QColor>

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
    void setColoreTesto(const QColor &colore) { m_colore = colore; }
    // The font in which the name finds room on the face: the set one, or smaller.
    QFont fontMostrato() const;

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    QRect spazio() const;
    bool entra(const QFont &font, int opzioni) const;

    QString m_caption;
    QFont m_font;
    QColor m_colore = Qt::black;
};

} // namespace zuvora
