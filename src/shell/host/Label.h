#pragma once

#include "shell/host/Controllo.h"

#include <QLabel>

namespace zuvora {

// A text on a form. Long texts wrap inside their place.
class Label : public Controllo<QLabel>, public ConDidascalia {
    Q_OBJECT
public:
    Label(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    void setCaption(const QString &testo);
    QString Caption() const { return m_caption; }
    void setFontBase(const QFont &font); // instead of the form's font
    // The label takes the size of its text, on one line a line of the text; left and top stay.
    void setAutosize(bool autosize);
    void setAllineamento(Qt::Alignment orizzontale); // the text stays at the top
    // An invalid colour is the one of the form; an invalid ground lets the form through.
    void setColori(const QColor &testo, const QColor &sfondo = {});
    // A text that finds no room is cut by an ellipsis and comes whole as tool tip, on one line.
    void setAbbrevia(bool abbrevia);
    // The text is a path: it goes to the next line behind a separator, and comes whole as tool tip.
    void setPercorso(bool percorso);

    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;
    bool vaACapo() const override { return wordWrap(); }

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;

private:
    void adatta();
    QString m_caption;
    QFont m_base;
    bool m_autosize = false;
    bool m_abbrevia = false;
    bool m_percorso = false;
    bool m_disposto = false; // the caption is fitted from the first showing on, as a button's is
};

// A label that is clicked like a link.
class LabelLink : public Label {
    Q_OBJECT
public:
    LabelLink(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
};

} // namespace zuvora
