#include "foto/Fotografo.h"

#include "shell/host/Pagina.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace zuvora::foto {
namespace {

constexpr int battito_ms = 20;
constexpr int quiete = 20;         // beats before a form counts as filled and painted
constexpr int chiusureMassime = 3; // tries before a form is put away without being asked

} // namespace

Fotografo::Fotografo(QWidget &pannello, QStringList voci, QList<Passo> passi, QDir cartella)
    : m_pannello(pannello), m_voci(std::move(voci)), m_passi(std::move(passi)), m_cartella(std::move(cartella)) {
    QTimer::singleShot(battito_ms, this, &Fotografo::batti);
}

QStringList Fotografo::mancanti() const {
    return m_mancanti;
}

void Fotografo::batti() {
    // Anew each time: a timer doesn't fire while its own beat still waits for a form that it opened.
    QTimer::singleShot(battito_ms, this, &Fotografo::batti);
    QWidget *sopra = QApplication::activeModalWidget();
    if (sopra == nullptr)
        sopra = &m_pannello;
    if (!m_stati.contains(sopra)) {
        Stato stato;
        if (sopra == &m_pannello)
            stato.bottoni = m_voci;
        for (const Passo &passo : std::as_const(m_passi))
            if (sopra->objectName() == QLatin1StringView(passo.form))
                stato.bottoni += QString::fromLatin1(passo.bottone);
        m_stati.insert(sopra, stato);
        connect(sopra, &QObject::destroyed, this, [this, sopra] { m_stati.remove(sopra); });
    }
    Stato &stato = m_stati[sopra];
    if (++stato.battiti >= quiete)
        avanza(*sopra, stato);
}

// May come back only after the forms that a button opened have been drawn and closed: `stato` is not used after that.
void Fotografo::avanza(QWidget &form, Stato &stato) {
    stato.battiti = 0;
    if (!stato.disegnato)
        disegna(form, form.objectName());
    stato.disegnato = true;
    const auto pagine = form.findChildren<Pagina *>();
    for (const Pagina *pagina : pagine)
        if (pagina->aperta())
            disegna(form, pagina->objectName());
    if (stato.bottoni.isEmpty())
        chiudi(form, stato);
    else
        premi(form, stato.bottoni.takeFirst());
}

void Fotografo::disegna(QWidget &form, const QString &nome) {
    const QString file =
        m_cartella.filePath((nome.isEmpty() ? QString::fromLatin1(form.metaObject()->className()) : nome) + u".png"_s);
    if (!QFile::exists(file))
        form.grab().save(file);
}

void Fotografo::premi(QWidget &form, const QString &bottone) {
    auto *trovato = form.findChild<QWidget *>(bottone);
    if (trovato == nullptr)
        m_mancanti += form.objectName() + u' ' + bottone;
    else if (auto *pulsante = qobject_cast<QAbstractButton *>(trovato))
        pulsante->click();
    else
        QTest::mouseClick(trovato, form.objectName() == u"Form1" ? Qt::RightButton : Qt::LeftButton);
}

void Fotografo::chiudi(QWidget &form, Stato &stato) {
    auto *dialogo = qobject_cast<QDialog *>(&form);
    if (++stato.chiusure > chiusureMassime && dialogo != nullptr)
        dialogo->done(0);
    else
        form.close();
    if (&form == &m_pannello && !form.isVisible())
        QApplication::quit();
}

} // namespace zuvora::foto
