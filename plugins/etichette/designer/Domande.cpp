#include "etichette/designer/Domande.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString titolo = u"Zuvora-Messaggio"_s;

std::optional<QString> scelto(const QString &percorso) {
    return percorso.isEmpty() ? std::nullopt : std::optional(percorso);
}

} // namespace

void DomandeQt::avvisa(QWidget *padre, const QString &testo) {
    QMessageBox box(QMessageBox::Information, titolo, testo, QMessageBox::NoButton, padre);
    box.addButton(u"C&hiudi"_s, QMessageBox::AcceptRole);
    box.exec();
}

bool DomandeQt::conferma(QWidget *padre, const QString &testo, bool sicura) {
    QMessageBox box(QMessageBox::Question, titolo, testo, QMessageBox::NoButton, padre);
    QPushButton *si = box.addButton(u"&Sì"_s, QMessageBox::YesRole);
    QPushButton *no = box.addButton(u"&No"_s, QMessageBox::NoRole);
    box.setDefaultButton(sicura ? si : no);
    box.setEscapeButton(sicura ? si : no);
    box.exec();
    return box.clickedButton() == si;
}

Domande::Risposta DomandeQt::salvare(QWidget *padre, const QString &testo) {
    QMessageBox box(QMessageBox::Question, titolo, testo, QMessageBox::NoButton, padre);
    QPushButton *salva = box.addButton(u"&Salva"_s, QMessageBox::AcceptRole);
    const QPushButton *lascia = box.addButton(u"&Non salvare"_s, QMessageBox::DestructiveRole);
    QPushButton *resta = box.addButton(u"&Annulla"_s, QMessageBox::RejectRole);
    box.setDefaultButton(salva);
    box.setEscapeButton(resta);
    box.exec();
    return box.clickedButton() == salva    ? Risposta::Si
           : box.clickedButton() == lascia ? Risposta::No
                                           : Risposta::Annulla;
}

std::optional<QString> DomandeQt::apriFile(QWidget *padre, const QString &titoloFinestra, const QString &filtro) {
    return scelto(
        QFileDialog::getOpenFileName(padre, titoloFinestra, {}, filtro, nullptr,
                                     QFileDialog::DontUseNativeDialog | QFileDialog::DontUseCustomDirectoryIcons));
}

std::optional<QString> DomandeQt::salvaFile(QWidget *padre, const QString &titoloFinestra, const QString &proposto,
                                            const QString &filtro) {
    return scelto(
        QFileDialog::getSaveFileName(padre, titoloFinestra, proposto, filtro, nullptr,
                                     QFileDialog::DontUseNativeDialog | QFileDialog::DontUseCustomDirectoryIcons));
}

} // namespace zuvora
