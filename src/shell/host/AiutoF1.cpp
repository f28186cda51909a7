#include "shell/host/AiutoF1.h"

#include "shell/host/MsgForm.h"
#include "shell/host/Piattaforma.h"

#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Lines of a window's name and its chapter.
QHash<QString, QString> leggiCapitoli(const QString &file) {
    QHash<QString, QString> capitoli;
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return capitoli;
    const auto righe = QString::fromUtf8(f.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &riga : righe)
        if (const qsizetype virgola = riga.lastIndexOf(u','); virgola > 0)
            capitoli[riga.left(virgola)] = riga.mid(virgola + 1).trimmed();
    return capitoli;
}

} // namespace

QString AiutoF1::cartella() const {
    return QDir(m_ambiente.valori.PercorsoApplicazione).filePath(u"guida"_s);
}

QString AiutoF1::capitolo(const QWidget &widget) const {
    const auto capitoli = leggiCapitoli(cartella() + u"/capitoli.csv"_s);
    QString nome = u"index"_s;
    for (const QWidget *w = &widget; w != nullptr; w = w->parentWidget())
        if (const auto trovato = capitoli.find(w->objectName()); trovato != capitoli.end()) {
            nome = *trovato;
            break;
        }
    return cartella() + u'/' + nome + u".html"_s;
}

void AiutoF1::apri(QWidget &widget) {
    QWidget *finestra = widget.window();
    const QString pagina = capitolo(widget);
    if (!QFile::exists(pagina))
        mostraMessaggio(m_ambiente, finestra, u"La guida non è nella cartella del programma:"_s,
                        QDir::toNativeSeparators(cartella()));
    else if (!m_ambiente.piattaforma.apriNelBrowser(QUrl::fromLocalFile(pagina)))
        mostraMessaggio(m_ambiente, finestra, u"Nessun browser ha aperto la guida. La sua pagina è"_s,
                        QDir::toNativeSeparators(pagina));
}

bool AiutoF1::eventFilter(QObject *oggetto, QEvent *evento) {
    if (evento->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(evento)->key() != Qt::Key_F1)
        return false;
    auto *widget = qobject_cast<QWidget *>(oggetto);
    if (widget == nullptr)
        return false; // the window's own event comes first; its widgets follow
    apri(*widget);
    return true;
}

} // namespace zuvora
