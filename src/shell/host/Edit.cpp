#include "shell/host/Edit.h"

#include "shell/host/Piattaforma.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTextBlock>
#include <QValidator>
#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// True for the key combinations by which a line edit takes text from elsewhere.
bool incolla(const QKeyEvent *e) {
    return e->matches(QKeySequence::Paste);
}

template <class W> void applicaSolaLettura(W &campo, const QString &motivo) {
    campo.setReadOnly(!motivo.isEmpty());
    campo.setToolTip(motivo);
    campo.setAccessibleDescription(motivo);
    campo.update();
}

} // namespace

// Sees every change of the text, whatever brought it. What stood there before is left alone: only the piece between the
// common beginning and the common end is new.
class Edit::Filtro : public QValidator {
public:
    explicit Filtro(Edit &campo) : QValidator(&campo), m_campo(campo), m_prima(campo.text()) {
        connect(&campo, &QLineEdit::textChanged, this, [this](const QString &testo) { m_prima = testo; });
    }
    bool daProgramma = false;

    State validate(QString &testo, int &cursore) const override {
        if (daProgramma || !m_campo.m_ammesso)
            return Acceptable;
        const qsizetype minima = std::min(testo.size(), m_prima.size());
        qsizetype inizio = 0;
        while (inizio < minima && testo.at(inizio) == m_prima.at(inizio))
            ++inizio;
        qsizetype fine = 0;
        while (fine < minima - inizio && testo.at(testo.size() - 1 - fine) == m_prima.at(m_prima.size() - 1 - fine))
            ++fine;
        const QString nuovo = testo.mid(inizio, testo.size() - inizio - fine);
        QString resta;
        std::copy_if(nuovo.begin(), nuovo.end(), std::back_inserter(resta), m_campo.m_ammesso);
        if (resta.size() == nuovo.size())
            return Acceptable;
        if (resta.isEmpty())
            return Invalid; // as if nothing had come
        testo = testo.left(inizio) + resta + testo.right(fine);
        cursore = int(inizio + resta.size());
        return Acceptable;
    }

private:
    Edit &m_campo;
    QString m_prima;
};

Edit::Edit(QWidget *padre, const char *nome, const Posto &posto, const char *testo) : Controllo(padre, nome, posto) {
    QLineEdit::setText(QString::fromUtf8(testo));
}

void Edit::setText(const QString &testo) {
    auto *filtro = static_cast<Filtro *>(const_cast<QValidator *>(validator()));
    if (filtro != nullptr)
        filtro->daProgramma = true;
    QLineEdit::setText(testo);
    if (filtro != nullptr)
        filtro->daProgramma = false;
}

void Edit::setFiltro(std::function<bool(QChar)> ammesso) {
    m_ammesso = std::move(ammesso);
    if (validator() == nullptr)
        setValidator(new Filtro(*this));
}

void Edit::setSoloDigitato() {
    m_soloDigitato = true;
    setAcceptDrops(false);
}

void Edit::setSvuotaAppunti(Piattaforma &piattaforma, Svuota quando) {
    m_appunti = &piattaforma;
    m_svuota = quando;
}

void Edit::setSolaLettura(const QString &motivo) {
    applicaSolaLettura(*this, motivo);
}

QString Edit::comeDigitato(QString testo) const {
    if (m_maiuscole)
        for (QChar &c : testo)
            if (c >= u'a' && c <= u'z')
                c = c.toUpper();
    return testo;
}

void Edit::keyPressEvent(QKeyEvent *e) {
    if (m_appunti != nullptr && m_svuota == Svuota::AdOgniTasto)
        m_appunti->svuotaAppunti();
    if (m_soloDigitato && incolla(e)) {
        e->accept();
        return;
    }
    const QString testo = comeDigitato(e->text());
    if (testo == e->text()) {
        Controllo::keyPressEvent(e);
        return;
    }
    QKeyEvent maiuscola(e->type(), e->key(), e->modifiers(), testo, e->isAutoRepeat(), quint16(e->count()));
    Controllo::keyPressEvent(&maiuscola);
    e->setAccepted(maiuscola.isAccepted());
}

void Edit::inputMethodEvent(QInputMethodEvent *e) {
    e->setCommitString(comeDigitato(e->commitString()), e->replacementStart(), e->replacementLength());
    Controllo::inputMethodEvent(e);
}

void Edit::focusInEvent(QFocusEvent *e) {
    Controllo::focusInEvent(e);
    if (m_appunti != nullptr && m_svuota == Svuota::AlFuoco && e->reason() != Qt::PopupFocusReason)
        m_appunti->svuotaAppunti();
    if (m_seleziona && e->reason() != Qt::PopupFocusReason) {
        selectAll();
        m_clicDiFuoco = e->reason() == Qt::MouseFocusReason;
    }
}

void Edit::mousePressEvent(QMouseEvent *e) {
    // The middle button pastes where the platform has a second clipboard.
    if (m_soloDigitato && e->button() == Qt::MiddleButton)
        return;
    Controllo::mousePressEvent(e);
}

void Edit::mouseReleaseEvent(QMouseEvent *e) {
    if (m_soloDigitato && e->button() == Qt::MiddleButton)
        return;
    Controllo::mouseReleaseEvent(e);
    // The press put the cursor somewhere and the selection is gone; one that the user drew himself stays.
    if (std::exchange(m_clicDiFuoco, false) && !hasSelectedText())
        selectAll();
}

void Edit::contextMenuEvent(QContextMenuEvent *e) {
    if (!m_soloDigitato) {
        Controllo::contextMenuEvent(e);
        return;
    }
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    const auto azioni = menu->actions();
    for (QAction *azione : azioni)
        if (azione->objectName() == u"edit-paste"_s)
            azione->setVisible(false);
    menu->exec(e->globalPos());
}

EditMultilinea::EditMultilinea(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

// The document's plain text would turn fixed blanks into common ones.
QString EditMultilinea::text() const {
    QStringList righe;
    for (QTextBlock blocco = document()->begin(); blocco.isValid(); blocco = blocco.next())
        righe << blocco.text().replace(QChar::LineSeparator, u"\r\n"_s);
    return righe.join(u"\r\n"_s);
}

void EditMultilinea::setText(const QString &testo) {
    setPlainText(testo);
}

void EditMultilinea::setSolaLettura(const QString &motivo) {
    applicaSolaLettura(*this, motivo);
}

bool soloCifre(QChar c) {
    return c >= u'0' && c <= u'9';
}

} // namespace zuvora
