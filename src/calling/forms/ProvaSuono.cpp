#include "calling/forms/ProvaSuono.h"

#include "shell/host/ComponenteLettore.h"
#include "shell/logic/Percorsi.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Keeps the user's input from every window while it lives; Esc, and closing a window, end the loop.
class Fermo : public QObject {
public:
    explicit Fermo(QEventLoop &attesa) : m_attesa(attesa) {
        qApp->installEventFilter(this);
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~Fermo() override {
        QApplication::restoreOverrideCursor();
        qApp->removeEventFilter(this);
    }
    Fermo(const Fermo &) = delete;
    Fermo &operator=(const Fermo &) = delete;

protected:
    bool eventFilter(QObject *, QEvent *e) override {
        switch (e->type()) {
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent *>(e)->key() == Qt::Key_Escape)
                m_attesa.quit();
            return true;
        case QEvent::Close:
            e->ignore();
            m_attesa.quit();
            return true;
        case QEvent::ShortcutOverride:
            e->accept(); // no menu or button by its letter
            return true;
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::DragEnter:
        case QEvent::Drop:
            return true;
        default:
            return false;
        }
    }

private:
    QEventLoop &m_attesa;
};

bool finito(const Lettore &lettore) {
    return lettore.stato() == StatoLettore::Finito || lettore.stato() == StatoLettore::Guasto;
}

} // namespace

QString provaSuono(const QString &componenti, const Percorsi &percorsi, const QString &scritto) {
    const Percorsi::Esame esame = percorsi.chiediEAspetta(scritto);
    if (esame.muto)
        return u"La cartella del suono non risponde: %1"_s.arg(scritto);
    if (esame.specie == Specie::Manca)
        return u"Il file non si trova: %1"_s.arg(scritto);
    EsitoComponenteLettore esito = creaLettore(componenti, nullptr);
    if (esito.lettore == nullptr)
        return esito.motivo;
    QEventLoop attesa;
    const Fermo fermo(attesa);
    esito.lettore->setAlCambio([&] {
        if (finito(*esito.lettore))
            attesa.quit();
    });
    esito.lettore->apriFile(esame.percorso);
    attesa.exec();
    return esito.lettore->motivo();
}

} // namespace zuvora
