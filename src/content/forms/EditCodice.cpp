#include "content/forms/EditCodice.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

namespace zuvora {
namespace {

QString maiuscolo(QString testo) {
    for (QChar &c : testo)
        if (c >= u'a' && c <= u'z')
            c = c.toUpper();
    return testo;
}

} // namespace

EditCodice::EditCodice(QWidget *padre, const char *nome, const Posto &posto, int massimo)
    : EditMultilinea(padre, nome, posto), m_massimo(massimo) {}

// Line ends count as the two characters that they are in the text.
int EditCodice::spazio() const {
    const QTextCursor cursore = textCursor();
    return m_massimo - static_cast<int>(text().size() - cursore.selectedText().size());
}

void EditCodice::keyPressEvent(QKeyEvent *e) {
    const QString testo = maiuscolo(e->text());
    const bool scrive = !testo.isEmpty() && (testo.front().isPrint() || testo.front() == u'\r');
    if (scrive && spazio() < (testo.front() == u'\r' ? 2 : testo.size())) {
        e->accept();
        return;
    }
    QKeyEvent cambiato(e->type(), e->key(), e->modifiers(), testo, e->isAutoRepeat(), static_cast<quint16>(e->count()));
    EditMultilinea::keyPressEvent(&cambiato);
    e->setAccepted(cambiato.isAccepted());
}

void EditCodice::inputMethodEvent(QInputMethodEvent *e) {
    QInputMethodEvent cambiato(e->preeditString(), e->attributes());
    cambiato.setCommitString(maiuscolo(e->commitString()).left(std::max(0, spazio())), e->replacementStart(),
                             e->replacementLength());
    EditMultilinea::inputMethodEvent(&cambiato);
}

void EditCodice::insertFromMimeData(const QMimeData *dati) {
    if (!dati->hasText())
        return;
    QMimeData ridotto;
    ridotto.setText(dati->text().left(std::max(0, spazio())));
    EditMultilinea::insertFromMimeData(&ridotto);
}

} // namespace zuvora
