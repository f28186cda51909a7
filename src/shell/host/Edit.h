#pragma once

#include "shell/host/Controllo.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <functional>

namespace zuvora {

class Piattaforma;

// One line of text. What the user puts in can be filtered, whichever way it comes: keys, paste, drop, input method.
// A text set by the program is shown as it is.
class Edit : public Controllo<QLineEdit> {
    Q_OBJECT
public:
    enum class Svuota { AlFuoco, AdOgniTasto }; // when the clipboard is emptied

    Edit(QWidget *padre, const char *nome, const Posto &posto, const char *testo = "");

    void setText(const QString &testo); // unfiltered
    // Characters that the test refuses fall out of what the user puts in; the rest stays.
    void setFiltro(std::function<bool(QChar)> ammesso);
    // A typed a to z becomes its capital. Pasted text keeps its case.
    void setMaiuscole(bool maiuscole) { m_maiuscole = maiuscole; }
    // All is selected when the box gets the focus, by mouse too.
    void setSelezionaAlFuoco(bool seleziona = true) { m_seleziona = seleziona; }
    // Text can only be typed: nothing is pasted or dropped.
    void setSoloDigitato();
    void setSvuotaAppunti(Piattaforma &piattaforma, Svuota quando);
    // The box can't be edited, looks so and tells why. An empty reason makes it editable again.
    void setSolaLettura(const QString &motivo);

protected:
    void keyPressEvent(QKeyEvent *e) override;
    void inputMethodEvent(QInputMethodEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void contextMenuEvent(QContextMenuEvent *e) override;

private:
    class Filtro;
    QString comeDigitato(QString testo) const;

    std::function<bool(QChar)> m_ammesso;
    Piattaforma *m_appunti = nullptr;
    Svuota m_svuota = Svuota::AlFuoco;
    bool m_maiuscole = false;
    bool m_seleziona = false;
    bool m_soloDigitato = false;
    bool m_clicDiFuoco = false; // the press under way has brought the focus
};

// Several lines of text. Enter makes a line, Tab leaves the box. Lines of the text are ended by CR LF.
class EditMultilinea : public Controllo<QPlainTextEdit> {
    Q_OBJECT
public:
    EditMultilinea(QWidget *padre, const char *nome, const Posto &posto);
    QString text() const;
    void setText(const QString &testo); // CR LF, LF and CR end a line
    void setSolaLettura(const QString &motivo);
};

// The digits 0 to 9.
bool soloCifre(QChar c);

} // namespace zuvora
