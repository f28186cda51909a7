#include "shell/host/QtDialoghi.h"

#include "shell/host/ColorPicker.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QLibraryInfo>
#include <QMessageBox>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QStringList filtriQt(const QString &filtro) {
    QStringList esito;
    const QStringList pezzi = filtro.split(u'|');
    for (qsizetype i = 0; i + 1 < pezzi.size(); i += 2) {
        // A description that lists its patterns itself would have them read as Qt's own list.
        QString descrizione = pezzi.at(i).section(u'(', 0, 0).trimmed();
        if (descrizione.isEmpty())
            descrizione = u"File"_s;
        QStringList modelli = pezzi.at(i + 1).split(u';', Qt::SkipEmptyParts);
        const QStringList scritti = modelli;
        for (const QString &modello : scritti)
            if (modello.toUpper() != modello)
                modelli << modello.toUpper();
        esito << descrizione + u" ("_s + modelli.join(u' ') + u")"_s;
    }
    return esito;
}

void QtDialoghi::parlaItaliano() {
    if (std::exchange(m_caricata, true))
        return;
    if (m_traduzione.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&m_traduzione);
}

void QtDialoghi::messaggio(QWidget *padre, Icona icona, const QString &titolo, const QString &testo) {
    parlaItaliano();
    QMessageBox box(icona == Icona::Critica ? QMessageBox::Critical : QMessageBox::Information, titolo, testo,
                    QMessageBox::Ok, padre);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::optional<QString> QtDialoghi::apriFile(QWidget *padre, const RichiestaFile &richiesta) {
    parlaItaliano();
    QFileDialog dialogo(padre, richiesta.titolo, richiesta.cartella);
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setNameFilters(filtriQt(richiesta.filtro));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(dialogo.selectedFiles().constFirst());
}

std::optional<QString> QtDialoghi::scegliCartella(QWidget *padre, const QString &titolo) {
    parlaItaliano();
    const QString cartella = QFileDialog::getExistingDirectory(
        padre, titolo, {}, QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (cartella.isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(cartella);
}

std::optional<FontScelto> QtDialoghi::scegliFont(QWidget *padre) {
    parlaItaliano();
    bool confermato = false;
    const QFont font =
        QFontDialog::getFont(&confermato, QApplication::font(), padre, {}, QFontDialog::DontUseNativeDialog);
    if (!confermato)
        return std::nullopt;
    return FontScelto{font.family(), font.pointSizeF(), font.bold(), font.italic()};
}

std::optional<int> QtDialoghi::scegliColore(QWidget *padre, int attuale) {
    parlaItaliano();
    const QColor colore = QColorDialog::getColor(coloreDa(attuale), padre, {}, QColorDialog::DontUseNativeDialog);
    if (!colore.isValid())
        return std::nullopt;
    return bgrDa(colore);
}

} // namespace zuvora
