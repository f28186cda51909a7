#include "shell/host/ListBox.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace zuvora {
namespace {

QStringList fileDi(const QMimeData *dati) {
    QStringList percorsi;
    const QList<QUrl> indirizzi = dati->urls();
    for (const QUrl &indirizzo : indirizzi)
        if (indirizzo.isLocalFile())
            percorsi << QDir::toNativeSeparators(indirizzo.toLocalFile());
    return percorsi;
}

} // namespace

void ListBox::AddItem(const QString &testo, int indice) {
    inSilenzio([&] { insertItem(indice < 0 ? count() : indice, testo); });
}

void ListBox::RemoveItem(int indice) {
    inSilenzio([&] {
        const bool scelta = indice == currentRow();
        delete takeItem(indice);
        if (scelta)
            setListIndex(-1);
    });
}

void ListBox::Clear() {
    inSilenzio([&] { clear(); });
}

QStringList ListBox::voci() const {
    QStringList tutte;
    for (int i = 0; i < count(); ++i)
        tutte << item(i)->text();
    return tutte;
}

void ListBox::setVoci(const QStringList &voci) {
    inSilenzio([&] {
        clear();
        addItems(voci);
        setListIndex(-1);
    });
}

void ListBox::sposta(int da, int a) {
    if (da < 0 || da >= count() || a < 0 || a >= count())
        return;
    inSilenzio([&] {
        insertItem(a, takeItem(da));
        setCurrentRow(a);
    });
}

void ListBox::setRilascioFile(bool ammesso) {
    setAcceptDrops(ammesso);
    setDropIndicatorShown(false);
    viewport()->setAcceptDrops(ammesso);
}

void ListBox::dragEnterEvent(QDragEnterEvent *e) {
    if (!fileDi(e->mimeData()).isEmpty())
        e->acceptProposedAction();
}

void ListBox::dragMoveEvent(QDragMoveEvent *e) {
    e->acceptProposedAction();
}

void ListBox::dropEvent(QDropEvent *e) {
    e->setDropAction(Qt::CopyAction); // the files stay where they are
    e->accept();
    Q_EMIT fileRilasciati(fileDi(e->mimeData()));
}

} // namespace zuvora
