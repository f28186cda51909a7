// The measure of all starts: an empty dialog.
#include "PrimaPittura.h"

#include <QDialog>

int main(int argc, char *argv[]) {
    QApplication applicazione(argc, argv);
    PrimaPittura pittura;
    applicazione.installEventFilter(&pittura);
    QDialog dialogo;
    dialogo.resize(579, 507);
    dialogo.show();
    return QApplication::exec();
}
