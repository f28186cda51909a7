#pragma once

#include "shell/host/Elenco.h"

namespace zuvora {

// A list whose lines are kept in the order that the user gives them.
class ListBox : public Elenco {
    Q_OBJECT
public:
    using Elenco::Elenco;
    void AddItem(const QString &testo, int indice = -1); // -1: at the end
    void RemoveItem(int indice);                         // without the chosen line none is chosen
    void Clear();
    QStringList voci() const;
    void setVoci(const QStringList &voci); // none is chosen
    // The line goes to another place, and is the chosen one there; tells nothing.
    void sposta(int da, int a);
    // Files may be dropped on the list.
    void setRilascioFile(bool ammesso);

Q_SIGNALS:
    void fileRilasciati(const QStringList &percorsi); // native form, in the order in which they came

protected:
    void dragEnterEvent(QDragEnterEvent *e) override;
    void dragMoveEvent(QDragMoveEvent *e) override;
    void dropEvent(QDropEvent *e) override;
};

} // namespace zuvora
