#pragma once

#include <QString>

namespace zuvora {

// The few values that forms share in memory. Everything else passes through the database.
struct ValoriCondivisi {
    QString PercorsoApplicazione; // folder of the running executable, without a trailing separator
    QString LayoutCorrente;       // table name of the layout being edited
    QString PercorsoTG;           // address of the news source
};

} // namespace zuvora
