#include "etichette/designer/Campi.h"

#include <QKeyEvent>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QString inMillimetri(int decimi) {
    QString testo = QString::number(decimi / 10.0, 'f', decimi % 10 == 0 ? 0 : 1);
    return testo.replace(u'.', u',');
}

std::optional<int> daMillimetri(const QString &testo) {
    QString numero = testo.trimmed();
    if (numero.endsWith("mm"_L1))
        numero.chop(2);
    bool riuscito = false;
    const double mm = numero.replace(u',', u'.').toDouble(&riuscito);
    return riuscito && std::abs(mm) <= 10000 ? std::optional(static_cast<int>(std::lround(mm * 10))) : std::nullopt;
}

CampoMisura::CampoMisura(const char *nome, const QString &descrizione, QWidget *padre) : QLineEdit(padre) {
    setObjectName(QString::fromLatin1(nome));
    setAccessibleName(descrizione);
    setToolTip(descrizione + u" in millimetri"_s);
    setAlignment(Qt::AlignRight);
    setMaxLength(12);
    connect(this, &QLineEdit::editingFinished, this, &CampoMisura::applica);
}

void CampoMisura::setDecimi(std::optional<int> decimi) {
    m_decimi = decimi;
    setText(decimi ? inMillimetri(*decimi) : QString());
}

std::optional<int> CampoMisura::decimi() const {
    return daMillimetri(text());
}

void CampoMisura::applica() {
    const auto nuovo = daMillimetri(text());
    if (!nuovo || nuovo == m_decimi) {
        setDecimi(m_decimi);
        return;
    }
    m_decimi = nuovo;
    Q_EMIT applicato(*nuovo);
}

void CampoMisura::keyPressEvent(QKeyEvent *e) {
    if (e->key() != Qt::Key_Return && e->key() != Qt::Key_Enter) {
        QLineEdit::keyPressEvent(e);
        return;
    }
    applica();
    selectAll();
    e->accept(); // the window's buttons are not meant
}

CampoTesto::CampoTesto(const char *nome, const QString &descrizione, QWidget *padre) : QPlainTextEdit(padre) {
    setObjectName(QString::fromLatin1(nome));
    setAccessibleName(descrizione);
    setToolTip(descrizione + u" (Invio lo applica, Maiusc+Invio va a capo)"_s);
    setTabChangesFocus(true);
}

void CampoTesto::mostra(const QString &testo) {
    m_testo = testo;
    if (toPlainText() != testo)
        setPlainText(testo);
    document()->setModified(false);
}

void CampoTesto::applica() {
    if (toPlainText() == m_testo)
        return;
    m_testo = toPlainText();
    Q_EMIT applicato(m_testo);
}

void CampoTesto::keyPressEvent(QKeyEvent *e) {
    const bool invio = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
    if (!invio || (e->modifiers() & Qt::ShiftModifier) != 0) {
        QPlainTextEdit::keyPressEvent(e);
        return;
    }
    applica();
    e->accept();
}

void CampoTesto::focusOutEvent(QFocusEvent *e) {
    QPlainTextEdit::focusOutEvent(e);
    if (e->reason() != Qt::PopupFocusReason && e->reason() != Qt::ActiveWindowFocusReason)
        applica();
}

} // namespace zuvora
