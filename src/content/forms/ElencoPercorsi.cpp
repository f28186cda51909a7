#include "content/forms/ElencoPercorsi.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QUrl>

namespace zuvora {

ElencoPercorsi::ElencoPercorsi(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAcceptDrops(true);
    setDragDropMode(DropOnly);
    connect(this, &QListWidget::itemClicked, this, [this] {
        if (!m_segnalato)
            Q_EMIT cliccato();
    });
}

void ElencoPercorsi::setVoci(const QStringList &voci) {
    const QScopedValueRollback silenzio(m_tace, true);
    clear();
    addItems(voci);
}

void ElencoPercorsi::setListIndex(int indice) {
    const QScopedValueRollback silenzio(m_tace, true);
    setCurrentRow(indice);
}

QString ElencoPercorsi::List(int indice) const {
    const QListWidgetItem *voce = item(indice);
    return voce == nullptr ? QString() : voce->text();
}

QStringList ElencoPercorsi::voci() const {
    QStringList tutte;
    for (int i = 0; i < count(); ++i)
        tutte << item(i)->text();
    return tutte;
}

void ElencoPercorsi::sposta(int da, int a) {
    const QScopedValueRollback silenzio(m_tace, true);
    insertItem(a, takeItem(da));
    setCurrentRow(a);
}

void ElencoPercorsi::mousePressEvent(QMouseEvent *e) {
    const int prima = currentRow();
    Controllo::mousePressEvent(e);
    m_segnalato = currentRow() != prima;
}

void ElencoPercorsi::currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) {
    Controllo::currentChanged(attuale, precedente);
    if (!m_tace && attuale.isValid())
        Q_EMIT cliccato();
}

void ElencoPercorsi::dragEnterEvent(QDragEnterEvent *e) {
    if (e->mimeData()->hasUrls())
        e->acceptProposedAction();
}

void ElencoPercorsi::dragMoveEvent(QDragMoveEvent *e) {
    e->setAccepted(e->mimeData()->hasUrls());
}

void ElencoPercorsi::dropEvent(QDropEvent *e) {
    QStringList percorsi;
    const auto indirizzi = e->mimeData()->urls();
    for (const QUrl &indirizzo : indirizzi)
        if (indirizzo.isLocalFile())
            percorsi << QDir::toNativeSeparators(indirizzo.toLocalFile());
    e->setDropAction(Qt::CopyAction);
    e->accept();
    Q_EMIT fileRilasciati(percorsi);
}

} // namespace zuvora
