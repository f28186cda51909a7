#include "kit/Guida.h"

#include "shell/host/Form.h"
#include "shell/host/Testo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int Passo_ms = 5;
constexpr int MassimoBattiti = 6000; // 30 s, for slow machines

} // namespace

Guida::Guida() {
    m_orologio.setInterval(Passo_ms);
    connect(&m_orologio, &QTimer::timeout, this, &Guida::batti);
    m_orologio.start();
}

Guida::~Guida() {
    for (const Passo &passo : m_passi)
        ADD_FAILURE() << "form never came: " << passo.form.toStdString();
}

Guida &Guida::quando(const char *form, std::function<void(QWidget &)> azione) {
    m_passi.push_back({QString::fromLatin1(form), std::move(azione)});
    m_battiti = 0;
    return *this;
}

Guida &Guida::premi(const char *form, const char *controllo) {
    return quando(form, [controllo = QByteArray(controllo)](QWidget &w) { clicca(w, controllo.constData()); });
}

Guida &Guida::messaggio(QString *righe, int indice) {
    return quando("MsgForm", [righe, indice](QWidget &w) {
        if (righe != nullptr) {
            *righe = trova<QLabel>(w, "Label2(0)").text();
            const QString seconda = trova<QLabel>(w, "Label2(1)").text();
            if (!seconda.isEmpty())
                *righe += u'\n' + seconda;
        }
        clicca(w, QByteArray("PB1(" + QByteArray::number(indice) + ")").constData());
    });
}

void Guida::batti() {
    QWidget *modale = QApplication::activeModalWidget();
    if (m_passi.empty() || modale == nullptr || modale->objectName() != m_passi.front().form) {
        if (modale != nullptr && ++m_battiti > MassimoBattiti) {
            ADD_FAILURE() << "stuck on form " << modale->objectName().toStdString();
            m_battiti = 0;
            m_passi.clear();
            modale->close();
        }
        return;
    }
    m_battiti = 0;
    const Passo passo = m_passi.front();
    m_passi.pop_front();
    // Not from the timer itself: it would not beat again until the action, and each form that it opens, is done.
    const auto esegui = [passo, form = QPointer(modale)] {
        if (form == nullptr)
            return;
        try {
            if (dynamic_cast<Form *>(form.data()) != nullptr) { // no dialog of the platform
                EXPECT_EQ(didascalieTagliate(*form) + campiSenzaNome(*form), QStringList());
            }
            passo.azione(*form);
        } catch (const std::exception &e) {
            ADD_FAILURE() << passo.form.toStdString() << ": " << e.what();
            if (form != nullptr)
                form->close();
        }
    };
    QMetaObject::invokeMethod(this, esegui, Qt::QueuedConnection);
}

void clicca(QWidget &radice, const char *nome) {
    trova<QAbstractButton>(radice, nome).click();
}

QStringList didascalieTagliate(QWidget &form) {
    if (!form.isVisible())
        form.grab(); // captions are fitted when they are about to be seen
    QStringList tagliate;
    const auto figli = form.findChildren<QWidget *>();
    for (const QWidget *w : figli)
        if (didascaliaTagliata(w))
            tagliate << w->objectName();
    return tagliate;
}

QStringList campiSenzaNome(QWidget &form) {
    QStringList senza;
    const auto campi = form.findChildren<QLineEdit *>();
    for (const QLineEdit *campo : campi)
        if (campo->isVisibleTo(&form) && campo->accessibleName().isEmpty())
            senza << campo->objectName();
    return senza;
}

void fotografa(QWidget &form, const QString &nome) {
    const QString cartella = qEnvironmentVariable("ZUVORA_IMMAGINI");
    if (!cartella.isEmpty())
        form.grab().save(QDir(cartella).filePath((nome.isEmpty() ? form.objectName() : nome) + u".png"_s));
}

} // namespace zuvora
