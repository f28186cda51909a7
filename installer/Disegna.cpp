#include "installer/Disegna.h"

#include "designer/forms/Scena.h"
#include "designer/logic/Finestra.h"
#include "designer/logic/ImmaginiQt.h"
#include "designer/logic/LetturaLayout.h"
#include "pannello/logic/Configurazione.h"
#include "shell/host/CarattereCasa.h"
#include "shell/host/Twips.h"
#include "shell/logic/FileAtomico.h"
#include "shell/store/EngineError.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
QString scrivi(const QImage &tela, const QString &file) {
    const QByteArray formato = QFileInfo(file).suffix().toLatin1();
    QByteArray byte;
    QBuffer buffer(&byte);
    buffer.open(QIODevice::WriteOnly);
    if (!tela.save(&buffer, formato.isEmpty() ? "PNG" : formato.constData()))
        return u"Questo formato di immagine non si può scrivere: usare .png o .jpg."_s;
    return scriviFile(file, byte);
}
} // namespace

Esito disegnaLayout(const QString &cartella, const QString &layout, const QString &file) {
    const QString dove = QDir::cleanPath(QFileInfo(cartella).absoluteFilePath());
    const QString tabella = tabellaLayout(numeroLayoutDi(layout)); // in its own spelling
    if (tabella.isEmpty())
        return {false,
                u"«%1» non è un layout: i layout sono LayoutBase e Layout1, Layout2, fino a Layout10."_s.arg(layout)};
    try {
        carattereCasa(); // its file is loaded for the texts of the canvas
        const int risoluzione = leggiStatoAvvio(dove).risoluzione;
        DisplayLayout disegno(tabella);
        ImmaginiQt immagini;
        const EsitoLettura lettura = CaricaLayout(disegno, immagini, dove);
        const Dimensione tela = dimensioneTela(risoluzione - 1);
        const QSize misura(pixelDa(int(tela.width)), pixelDa(int(tela.height)));
        QImage immagine(misura, QImage::Format_RGB32);
        QPainter pittore(&immagine);
        Scena(disegno, immagini, misura).mostra(pittore, QRect({}, misura), 1);
        pittore.end();
        const QString motivo = scrivi(immagine, file);
        if (!motivo.isEmpty())
            return {false, u"L'immagine %1 non è stata scritta. %2"_s.arg(QDir::toNativeSeparators(file), motivo)};
        QString messaggio = u"%1 disegnato in %2 (%3 x %4)."_s.arg(tabella, QDir::toNativeSeparators(file))
                                .arg(misura.width())
                                .arg(misura.height());
        if (const QString avvisi = lettura.testo(); !avvisi.isEmpty())
            messaggio += u'\n' + avvisi;
        return {true, messaggio};
    } catch (const EngineError &errore) {
        return {false, u"%1 non è stato disegnato. %2"_s.arg(tabella, errore.frase())};
    }
}

} // namespace zuvora::installa
