#pragma once

#include "shell/disegni/Disegni.h"
#include "shell/host/Controllo.h"

#include <QPixmap>
#include <QWidget>
#include <optional>

namespace zuvora {

// A picture on a form: one of the program's drawings, or a picture file's image stretched to the control's size.
class PictureBox : public Controllo<QWidget> {
    Q_OBJECT
public:
    PictureBox(QWidget *padre, const char *nome, const Posto &posto);
    PictureBox(QWidget *padre, const char *nome, const Posto &posto, Disegno disegno);

    void setImmagine(const QPixmap &immagine); // a null one clears the picture
    void setTesto(const QString &testo);       // stands in the control while there is no picture
    const QString &testo() const { return m_testo; }
    bool vuota() const { return !m_disegno && m_immagine.isNull(); }
    // A picture that is clicked: it takes the hand cursor and the keyboard focus.
    void rendiCliccabile(const QString &nomeAccessibile);

protected:
    void setCornice(bool cornice) { m_cornice = cornice; } // a frame while there is no picture

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;

private:
    void dipingiTesto(QPainter &pittore) const;

    QString m_testo;
    std::optional<Disegno> m_disegno;
    QPixmap m_immagine;
    bool m_cliccabile = false;
    bool m_cornice = false;
};

} // namespace zuvora
