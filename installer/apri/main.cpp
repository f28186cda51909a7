// zuvora: the menu's entry. Opens the installation chosen before, or lets the user choose or make one.
#include "installer/Crea.h"
#include "installer/Programma.h"
#include "installer/apri/Scelta.h"
#include "shell/host/Stile.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;
using namespace zuvora;

namespace {

void avvisa(const QString &testo) {
    QMessageBox box(QMessageBox::Information, u"Zuvora"_s, testo);
    box.addButton(u"C&hiudi"_s, QMessageBox::AcceptRole);
    box.exec();
}

bool conferma(const QString &testo) {
    QMessageBox box(QMessageBox::Question, u"Zuvora"_s, testo);
    const QPushButton *si = box.addButton(u"&Sì"_s, QMessageBox::YesRole);
    QPushButton *no = box.addButton(u"&No"_s, QMessageBox::NoRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == si;
}

QString chiediCartella(const QString &titolo) {
    return QFileDialog::getExistingDirectory(nullptr, titolo, QDir::homePath(),
                                             QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
}

// A new installation goes into a folder of its own below the one that the user picks, unless that is empty.
QString crea() {
    QString cartella = chiediCartella(u"Cartella in cui creare l'installazione"_s);
    if (cartella.isEmpty())
        return {};
    if (!QDir(cartella).isEmpty())
        cartella += u"/Zuvora"_s;
    installa::OpzioniCrea opzioni;
    opzioni.cartella = cartella;
    opzioni.esempio = conferma(u"Aggiungere contenuti di esempio, per provare il programma ?"_s);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const installa::Esito esito = installa::creaInstallazione(opzioni);
    QApplication::restoreOverrideCursor();
    avvisa(esito.messaggio);
    return esito.riuscito ? cartella : QString();
}

QString scegli() {
    QString cartella = chiediCartella(u"Cartella dell'installazione"_s);
    if (cartella.isEmpty() || apri::eInstallazione(cartella))
        return cartella;
    avvisa(u"Nella cartella %1 non c'è un'installazione di Zuvora."_s.arg(QDir::toNativeSeparators(cartella)));
    return {};
}

QString chiedi() {
    QMessageBox box(QMessageBox::Question, u"Zuvora"_s,
                    u"Nessuna installazione è stata scelta. Crearne una nuova o aprirne una che c'è già ?"_s);
    const QPushButton *nuova = box.addButton(u"&Crea nuova..."_s, QMessageBox::AcceptRole);
    const QPushButton *altra = box.addButton(u"&Apri esistente..."_s, QMessageBox::AcceptRole);
    box.setEscapeButton(box.addButton(u"C&hiudi"_s, QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == nuova ? crea() : box.clickedButton() == altra ? scegli() : QString();
}

int apriInstallazione(const QString &cartella) {
    const QString origine = QCoreApplication::applicationDirPath();
    if (apri::programmaDiverso(cartella, origine) &&
        conferma(
            u"L'installazione %1 ha un'altra versione del programma.\nPortarla a quella di questa macchina ? I dati "
            "restano come sono."_s.arg(QDir::toNativeSeparators(cartella))))
        avvisa(installa::aggiornaInstallazione(cartella, origine).messaggio);
    if (QProcess::startDetached(cartella + u"/zuvora"_s, {}, cartella))
        return 0;
    avvisa(u"Il programma nella cartella %1 non può essere avviato."_s.arg(QDir::toNativeSeparators(cartella)));
    return 1;
}

} // namespace

int main(int argc, char *argv[]) {
    QApplication applicazione(argc, argv);
    QTranslator italiano;
    if (italiano.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&italiano);
    preparaAspetto(applicazione);
    const apri::Scelta scelta;
    QString cartella = scelta.cartella();
    if (!apri::eInstallazione(cartella)) {
        if (!cartella.isEmpty())
            avvisa(u"L'installazione %1 non c'è più, o non si raggiunge."_s.arg(QDir::toNativeSeparators(cartella)));
        cartella = chiedi();
        if (cartella.isEmpty())
            return 0;
        if (const QString motivo = scelta.ricorda(cartella); !motivo.isEmpty())
            avvisa(u"La scelta della cartella non è stata ricordata. "_s + motivo);
    }
    return apriInstallazione(cartella);
}
