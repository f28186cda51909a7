#pragma once

#include "shell/host/Controllo.h"

#include <QListWidget>

namespace zuvora {

// What the lists of the program share. A gesture tells once that a line was chosen; taking the focus chooses none.
class Elenco : public Controllo<QListWidget> {
    Q_OBJECT
public:
    Elenco(QWidget *padre, const char *nome, const Posto &posto);
    int ListCount() const { return count(); }
    int ListIndex() const { return currentRow(); } // -1 without a chosen line
    void setListIndex(int indice);                 // another line than the chosen one counts as clicked; -1: none
    QString List(int indice) const;                // empty when there is no such line

Q_SIGNALS:
    void cliccato(); // a line was clicked, or reached with the keyboard
    void attivato(); // double click, Enter or Space on a line

protected:
    // Changes the lines; nothing is told meanwhile.
    template <class F> void inSilenzio(F &&azione) {
        const bool prima = std::exchange(m_silenzio, true);
        azione();
        m_silenzio = prima;
    }
    void mousePressEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;
    void currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) override;

private:
    bool m_silenzio = false;
    bool m_segnalato = false; // the press under way has chosen another line and said so
};

} // namespace zuvora
