#pragma once

#include "shell/host/Controllo.h"

#include <QListWidget>
#include <QStringList>

namespace zuvora {

// The paths of a playlist in their order. The same path may stand in it several times.
class ElencoPercorsi : public Controllo<QListWidget> {
    Q_OBJECT
public:
    ElencoPercorsi(QWidget *padre, const char *nome, const Posto &posto);

    void setVoci(const QStringList &voci); // in the place of all
    void AddItem(const QString &voce) { addItem(voce); }
    void RemoveItem(int indice) { delete takeItem(indice); }
    void Clear() { setVoci({}); }
    int ListCount() const { return count(); }
    int ListIndex() const { return currentRow(); } // -1 without a chosen entry
    void setListIndex(int indice);                 // no click
    QString List(int indice) const;                // empty when there is no such entry
    QStringList voci() const;
    void sposta(int da, int a); // the choice goes with the entry

Q_SIGNALS:
    void cliccato();                                  // an entry was clicked or reached with the keyboard
    void fileRilasciati(const QStringList &percorsi); // dropped by a file manager, native form

protected:
    void mousePressEvent(QMouseEvent *e) override;
    void currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) override;
    void dragEnterEvent(QDragEnterEvent *e) override;
    void dragMoveEvent(QDragMoveEvent *e) override;
    void dropEvent(QDropEvent *e) override;

private:
    bool m_tace = false;
    bool m_segnalato = false; // the press under way has chosen another entry and said so
};

} // namespace zuvora
