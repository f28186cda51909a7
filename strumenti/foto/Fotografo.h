#pragma once

#include <QDir>
#include <QHash>
#include <QStringList>
#include <QWidget>

namespace zuvora::foto {

// A form that only another form opens: `bottone`, or an element of the canvas, is pressed when `form` has been drawn.
struct Passo {
    const char *form;
    const char *bottone;
};

// Walks through the program from the main panel as a user would: draws whatever form stands on top, presses the buttons
// that lead on, and closes it. Ends the application when the panel is closed.
class Fotografo : public QObject {
public:
    Fotografo(QWidget &pannello, QStringList voci, QList<Passo> passi, QDir cartella);
    QStringList mancanti() const; // steps that found no such button

private:
    struct Stato {
        int battiti = 0; // since it came on top, or since the last button
        QStringList bottoni;
        bool disegnato = false;
        int chiusure = 0;
    };
    void batti();
    void avanza(QWidget &form, Stato &stato);
    void disegna(QWidget &form, const QString &nome);
    void premi(QWidget &form, const QString &bottone);
    void chiudi(QWidget &form, Stato &stato);

    QWidget &m_pannello;
    QStringList m_voci;
    QList<Passo> m_passi;
    QDir m_cartella;
    QHash<QWidget *, Stato> m_stati;
    QStringList m_mancanti;
};

} // namespace zuvora::foto
