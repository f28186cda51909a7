#include "shell/host/Form.h"

#include "shell/host/Tastiera.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <limits>
#include <utility>

namespace zuvora {
namespace {

// How far a label is from a field, in pixels: beside it on the same line, or right above it. A label elsewhere is no
// label of the field.
int distanza(const QRect &etichetta, const QRect &campo) {
    constexpr int vicino = 130;
    const bool stessaRiga = etichetta.top() < campo.bottom() && etichetta.bottom() > campo.top();
    if (stessaRiga && etichetta.left() < campo.left())
        return std::max(0, campo.left() - etichetta.right());
    const bool stessaColonna = etichetta.left() < campo.right() && etichetta.right() > campo.left();
    if (stessaColonna && etichetta.top() < campo.top() && campo.top() - etichetta.bottom() < vicino)
        return std::max(0, campo.top() - etichetta.bottom());
    return std::numeric_limits<int>::max();
}

bool eCampo(const QWidget *w) {
    return qobject_cast<const QLineEdit *>(w) != nullptr || qobject_cast<const QPlainTextEdit *>(w) != nullptr ||
           qobject_cast<const QAbstractItemView *>(w) != nullptr;
}

QString nomeDaEtichetta(const QWidget *campo) {
    int minima = std::numeric_limits<int>::max();
    QString nome;
    const auto etichette = campo->parentWidget()->findChildren<Label *>(QString(), Qt::FindDirectChildrenOnly);
    for (const Label *etichetta : etichette) {
        const int d = distanza(etichetta->geometry(), campo->geometry());
        if (d < minima && !etichetta->Caption().trimmed().isEmpty()) {
            minima = d;
            nome = etichetta->Caption().trimmed();
        }
    }
    if (nome.isEmpty())
        if (const auto *gruppo = qobject_cast<const QGroupBox *>(campo->parentWidget()))
            nome = gruppo->title().trimmed();
    return nome;
}

} // namespace

void nominaCampi(QWidget *form) {
    const auto figli = form->findChildren<QWidget *>();
    for (QWidget *w : figli)
        if (eCampo(w) && w->accessibleName().isEmpty())
            w->setAccessibleName(nomeDaEtichetta(w));
}

Form::Form(const Ambiente &ambiente, const char *nome, const char *didascalia, const Misura &interno, QWidget *padre)
    : QDialog(padre, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      Schermata(ambiente, static_cast<QWidget &>(*this)) {
    setObjectName(QString::fromUtf8(nome));
    Form::setCaption(QString::fromUtf8(didascalia));
    setMisuraInterna(interno);
}

void Form::setMisuraInterna(const Misura &interno) {
    setFixedSize(pixelDa(interno));
}

// Without a title the platform would put the program's name there.
void Form::setCaption(const QString &testo) {
    m_didascalia = testo;
    setWindowTitle(testo.isEmpty() ? QStringLiteral(" ") : testo);
}

// Where there is no opener to be seen, as at the start of the program. Of a form that fills the screen the title bar
// must stay in reach.
void Form::centra() {
    const QRect schermo = screen()->availableGeometry();
    QRect qui = frameGeometry();
    qui.moveCenter(schermo.center());
    move(std::max(qui.left(), schermo.left()), std::max(qui.top(), schermo.top()));
}

void Form::mostraModale() {
    setModal(true);
    const QPointer<Form> apritore =
        parentWidget() == nullptr ? nullptr : dynamic_cast<Form *>(parentWidget()->window());
    if (apritore != nullptr)
        ++apritore->m_sopra;
    exec();
    if (apritore == nullptr)
        return;
    --apritore->m_sopra;
    // Two windows that go at once, a message and the form below it, leave some window managers without an active one.
    apritore->activateWindow();
    apritore->accodaAttivazione();
}

void Form::scarica() {
    close();
}

void Form::reject() {
    close();
}

void Form::closeEvent(QCloseEvent *e) {
    bool consentito = false;
    proteggi([&] { consentito = puoScaricarsi(); });
    if (!consentito) {
        e->ignore();
        return;
    }
    // QDialog::closeEvent would come back through reject().
    e->accept();
    done(QDialog::Rejected);
}

// Enter belongs to the kit, not to the dialog's own default button.
void Form::keyPressEvent(QKeyEvent *e) {
    const bool invio = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
    const auto modi = e->modifiers() & ~Qt::KeypadModifier;
    if (!invio || modi != Qt::NoModifier) {
        QDialog::keyPressEvent(e);
        return;
    }
    e->accept();
    QAbstractButton *bottone = bottonePerInvio(focusWidget());
    // A key held down presses once, but for a button that repeats by itself.
    if (bottone != nullptr && (!e->isAutoRepeat() || bottone->autoRepeat()))
        bottone->click();
}

void Form::showEvent(QShowEvent *e) {
    QDialog::showEvent(e);
    if (m_mostrata || e->spontaneous())
        return;
    m_mostrata = true;
    if (parentWidget() == nullptr || !parentWidget()->window()->isVisible())
        centra();
    nominaCampi(this);
    ordinaFuochi(*this);
    correggiFuochi();
    if (QWidget *primo = focusWidget() == nullptr ? primoFuoco(*this) : nullptr)
        primo->setFocus(Qt::TabFocusReason);
    accodaAttivazione();
}

void Form::accodaAttivazione() {
    if (isVisible() && !m_inAttivazione && !std::exchange(m_inCoda, true))
        QMetaObject::invokeMethod(this, &Form::attiva, Qt::QueuedConnection);
}

void Form::attiva() {
    m_inCoda = false;
    if (!isVisible() || m_sopra > 0)
        return; // the return of the form above raises it again
    m_inAttivazione = true;
    proteggi([this] { attivata(); });
    m_inAttivazione = false;
}

} // namespace zuvora
