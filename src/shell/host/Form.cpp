#include "shell/host/Form.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QPlainTextEdit>
#include <limits>
#include <utility>

namespace zuvora {
namespace {

// How far a label is from a field, in pixels: beside it on the same line, or right above it. A label elsewhere is no
// label of the field.
int distanza(const QRect &etichetta, const QRect &campo) {
    constexpr int Vicino = 130;
    const bool stessaRiga = etichetta.top() < campo.bottom() && etichetta.bottom() > campo.top();
    if (stessaRiga && etichetta.left() < campo.left())
        return std::max(0, campo.left() - etichetta.right());
    const bool stessaColonna = etichetta.left() < campo.right() && etichetta.right() > campo.left();
    if (stessaColonna && etichetta.top() < campo.top() && campo.top() - etichetta.bottom() < Vicino)
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
    setWindowTitle(QString::fromUtf8(didascalia));
    setMisuraInterna(interno);
}

void Form::setMisuraInterna(const Misura &interno) {
    setFixedSize(pixelDa(interno));
}

void Form::mostraModale() {
    setModal(true);
    exec();
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

bool Form::event(QEvent *e) {
    const bool esito = QDialog::event(e);
    if (e->type() == QEvent::WindowDeactivate)
        m_attiva = false;
    if (e->type() == QEvent::WindowActivate && m_mostrata && !std::exchange(m_attiva, true))
        proteggi([this] { attivata(); });
    return esito;
}

void Form::showEvent(QShowEvent *e) {
    QDialog::showEvent(e);
    if (m_mostrata || e->spontaneous())
        return;
    // Some platforms activate a window late or never: the first activation comes with the form itself.
    m_mostrata = true;
    m_attiva = true;
    nominaCampi(this);
    proteggi([this] { attivata(); });
}

} // namespace zuvora
