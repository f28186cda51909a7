#include "shell/host/Elenco.h"

#include "shell/host/Abbreviate.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>

namespace zuvora {

Elenco::Elenco(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    setUniformItemSizes(true);
    abbreviaVoci(*this);
    setTabKeyNavigation(false);
    connect(this, &QListWidget::itemClicked, this, [this] {
        if (!m_segnalato)
            Q_EMIT cliccato();
    });
    connect(this, &QListWidget::itemDoubleClicked, this, &Elenco::attivato);
}

void Elenco::setListIndex(int indice) {
    setCurrentRow(indice);
    if (indice < 0)
        clearSelection();
}

QString Elenco::List(int indice) const {
    const QListWidgetItem *voce = item(indice);
    return voce == nullptr ? QString() : voce->text();
}

void Elenco::mousePressEvent(QMouseEvent *e) {
    const int prima = currentRow();
    Controllo::mousePressEvent(e);
    m_segnalato = currentRow() != prima;
}

// Where nobody waits for it, Enter goes on to the form and its main action.
void Elenco::keyPressEvent(QKeyEvent *e) {
    const bool attiva = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter || e->key() == Qt::Key_Space;
    if (!attiva) {
        Controllo::keyPressEvent(e);
        return;
    }
    if (currentRow() >= 0 && isSignalConnected(QMetaMethod::fromSignal(&Elenco::attivato)))
        Q_EMIT attivato();
    else
        e->ignore();
}

void Elenco::focusInEvent(QFocusEvent *e) {
    const bool nessuna = currentRow() < 0;
    inSilenzio([&] {
        Controllo::focusInEvent(e);
        if (nessuna)
            setListIndex(-1);
    });
}

void Elenco::currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) {
    Controllo::currentChanged(attuale, precedente);
    if (!m_silenzio && attuale.isValid())
        Q_EMIT cliccato();
}

} // namespace zuvora
