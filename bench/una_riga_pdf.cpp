// One line of text in a PDF: what the command line of the tickets is measured against.
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication applicazione(argc, argv);
    const QStringList parole = QGuiApplication::arguments();
    if (parole.size() != 3)
        return 2;
    QPdfWriter scrittore(parole[1]);
    QPainter p;
    if (!p.begin(&scrittore))
        return 1;
    p.setFont(QFont(parole[2], 20));
    p.drawText(1000, 1000, QStringLiteral("A152"));
    return p.end() ? 0 : 1;
}
