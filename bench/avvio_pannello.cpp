// The program's own start in the installation whose folder is the first argument.
#include "Composizione.h"
#include "PrimaPittura.h"
#include "pannello/forms/Avvio.h"
#include "shell/host/CarattereCasa.h"
#include "shell/host/QtDialoghi.h"
#include "shell/host/QtPiattaforma.h"
#include "shell/host/Stile.h"

using namespace zuvora;

namespace {

class InCartella : public QtPiattaforma {
public:
    InCartella(QByteArray chiave, QString cartella)
        : QtPiattaforma(std::move(chiave)), m_cartella(std::move(cartella)) {}
    QString cartellaEseguibile() const override { return m_cartella; }

private:
    QString m_cartella;
};

} // namespace

int main(int argc, char *argv[]) {
    const auto caratteri = avviaCaratteri();
    QApplication applicazione(argc, argv);
    PrimaPittura pittura;
    applicazione.installEventFilter(&pittura);
    caratteri.wait();
    preparaAspetto(applicazione);
    const auto elenco = elencaCaratteri();
    ValoriCondivisi valori;
    QtDialoghi dialoghi;
    InCartella piattaforma("zuvora-misura-avvio", QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    const Ambiente ambiente{valori, dialoghi, piattaforma};
    return eseguiProgramma(ambiente, vociDelPannello(), QUrl(QStringLiteral("https://www.zuvora.example/")));
}
