#include "shell/host/QtDialoghi.h"

#include "shell/disegni/Disegni.h"
#include "shell/host/ColorPicker.h"

#include <QAbstractFileIconProvider>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Icons and kinds by the name alone. Qt's own provider looks into each file, and one that never answers, a pipe say,
// would hold the dialog up for ever.
class IconeFile : public QAbstractFileIconProvider {
public:
    QIcon icon(const QFileInfo &info) const override { return info.isDir() ? m_cartella : m_file; }
    QIcon icon(IconType tipo) const override {
        switch (tipo) {
        case Folder:
        case Desktop:
        case Network:
            return m_cartella;
        case Computer:
        case Drive:
            return m_unita;
        default:
            return m_file;
        }
    }
    QString type(const QFileInfo &info) const override {
        if (info.isDir())
            return u"Cartella"_s;
        return info.suffix().isEmpty() ? u"File"_s : u"File %1"_s.arg(info.suffix().toUpper());
    }

private:
    QIcon m_cartella = icona(Disegno::Cartella);
    QIcon m_unita = icona(Disegno::Unita);
    QIcon m_file = icona(Disegno::FileImmagine);
};

void prepara(QFileDialog &dialogo, const IconeFile &icone) {
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    dialogo.setOption(QFileDialog::DontUseCustomDirectoryIcons);
    dialogo.setIconProvider(const_cast<IconeFile *>(&icone)); // Qt doesn't change it
}

std::optional<QString> risposta(QFileDialog &dialogo) {
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(dialogo.selectedFiles().constFirst());
}

// The font itself or, where the machine lacks it, the one that stands in for it: the dialog lists no other.
QString famigliaPresente(const QString &nome) {
    return QFontDatabase::hasFamily(nome) ? nome : QFontInfo(QFont(nome)).family();
}

// Styles go by the names that the font's file gives them, while Qt asks for translated ones.
QString stileDi(const QString &famiglia, const FontScelto &font) {
    const QStringList stili = QFontDatabase::styles(famiglia);
    for (const QString &stile : stili)
        if ((QFontDatabase::weight(famiglia, stile) > QFont::Medium) == font.grassetto &&
            QFontDatabase::italic(famiglia, stile) == font.italico)
            return stile;
    return {};
}

// The frame with strike-out and underline: no column keeps them. It is known by the two boxes in it. Without it the
// sample beside it has no height.
void nascondiEffetti(QFontDialog &dialogo) {
    constexpr int altezzaEsempio = 64; // pixels
    const auto gruppi = dialogo.findChildren<QGroupBox *>();
    for (QGroupBox *gruppo : gruppi)
        if (gruppo->findChildren<QCheckBox *>().size() == 2)
            gruppo->hide();
        else if (auto *esempio = gruppo->findChild<QLineEdit *>())
            esempio->setMinimumHeight(altezzaEsempio);
}

// The dialog filters by what Qt can read of the filter; what it shows is the filter's own description.
void mostraDescrizioni(QFileDialog &dialogo, const QString &filtro) {
    auto *tipi = dialogo.findChild<QComboBox *>(u"fileTypeCombo"_s);
    const QStringList pezzi = filtro.split(u'|');
    for (int i = 0; tipi != nullptr && i < tipi->count() && 2 * i + 1 < pezzi.size(); ++i)
        if (!pezzi.at(2 * i).trimmed().isEmpty())
            tipi->setItemText(i, pezzi.at(2 * i));
}

} // namespace

QStringList filtriQt(const QString &filtro) {
    QStringList esito;
    const QStringList pezzi = filtro.split(u'|');
    for (qsizetype i = 0; i + 1 < pezzi.size(); i += 2) {
        // A description that lists its patterns itself would have them read as Qt's own list.
        QString descrizione = pezzi.at(i).section(u'(', 0, 0).trimmed();
        if (descrizione.isEmpty())
            descrizione = u"File"_s;
        esito << descrizione + u" ("_s + pezzi.at(i + 1).split(u';', Qt::SkipEmptyParts).join(u' ') + u")"_s;
    }
    return esito;
}

void QtDialoghi::messaggio(QWidget *padre, Icona icona, const QString &titolo, const QString &testo) {
    QMessageBox box(icona == Icona::Critica ? QMessageBox::Critical : QMessageBox::Information, titolo, testo,
                    QMessageBox::Ok, padre);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

int QtDialoghi::scegli(QWidget *padre, const Scelta &scelta) {
    QMessageBox box(QMessageBox::Question, scelta.titolo, scelta.testo, QMessageBox::NoButton, padre);
    box.setTextFormat(Qt::PlainText);
    QList<QPushButton *> bottoni;
    for (const QString &didascalia : scelta.bottoni)
        bottoni << box.addButton(didascalia, QMessageBox::ActionRole);
    box.setDefaultButton(bottoni.at(scelta.predefinito));
    box.setEscapeButton(bottoni.at(scelta.sicuro));
    box.exec();
    for (qsizetype i = 0; i < bottoni.size(); ++i)
        if (box.clickedButton() == bottoni.at(i))
            return static_cast<int>(i);
    return scelta.sicuro;
}

// Where the dialog opens: it asks the folder on the window's thread, so one that doesn't answer is left out.
QString QtDialoghi::primaCartella(const QString &chiesta) const {
    for (const QString &cartella : {chiesta, QDir::currentPath(), QDir::homePath()}) {
        if (cartella.isEmpty())
            continue;
        const auto esame = m_percorsi.chiediEAspetta(cartella);
        if (esame.specie == Specie::Cartella)
            return esame.percorso;
    }
    return QDir::rootPath();
}

std::optional<QString> QtDialoghi::apriFile(QWidget *padre, const RichiestaFile &richiesta) {
    const IconeFile icone;
    QFileDialog dialogo(padre, richiesta.titolo, primaCartella(richiesta.cartella));
    prepara(dialogo, icone);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setNameFilters(filtriQt(richiesta.filtro));
    mostraDescrizioni(dialogo, richiesta.filtro);
    return risposta(dialogo);
}

std::optional<QString> QtDialoghi::salvaFile(QWidget *padre, const RichiestaFile &richiesta) {
    const IconeFile icone;
    QFileDialog dialogo(padre, richiesta.titolo, primaCartella(richiesta.cartella));
    prepara(dialogo, icone);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setNameFilters(filtriQt(richiesta.filtro));
    mostraDescrizioni(dialogo, richiesta.filtro);
    dialogo.selectFile(richiesta.proposto);
    return risposta(dialogo);
}

std::optional<QString> QtDialoghi::scegliCartella(QWidget *padre, const QString &titolo, const QString &prima) {
    const IconeFile icone;
    QFileDialog dialogo(padre, titolo, primaCartella(prima));
    prepara(dialogo, icone);
    dialogo.setFileMode(QFileDialog::Directory);
    dialogo.setOption(QFileDialog::ShowDirsOnly);
    return risposta(dialogo);
}

std::optional<FontScelto> QtDialoghi::scegliFont(QWidget *padre, const std::optional<FontScelto> &primo) {
    QFont inizio = QApplication::font();
    const QString famiglia = primo ? famigliaPresente(primo->nome) : QString();
    if (primo) {
        inizio.setFamily(famiglia);
        if (primo->misura > 0)
            inizio.setPointSizeF(primo->misura);
        inizio.setStyleName(stileDi(famiglia, *primo));
    }
    QFontDialog dialogo(inizio, padre);
    dialogo.setOption(QFontDialog::DontUseNativeDialog);
    nascondiEffetti(dialogo);
    if (dialogo.exec() != QDialog::Accepted)
        return std::nullopt;
    const QFont font = dialogo.selectedFont();
    const bool laStessa = primo && font.family() == famiglia;
    return FontScelto{laStessa ? primo->nome : font.family(), font.pointSizeF(), font.bold(), font.italic()};
}

std::optional<int> QtDialoghi::scegliColore(QWidget *padre, int attuale) {
    const QColor colore = QColorDialog::getColor(coloreDa(attuale), padre, {}, QColorDialog::DontUseNativeDialog);
    if (!colore.isValid())
        return std::nullopt;
    return bgrDa(colore);
}

} // namespace zuvora
