#pragma once

#include <QtGlobal>

class QWebEngineProfile;

namespace zuvora {

// The profile that all pages of the program share, off the record. It is made for the first page and lives as long as
// the program: one that goes while the engine is still at work on a download of its page takes the program with it, and
// many kept beside one another stall the engine. What a page leaves in it is cleared before the next page comes.
class ProfiloWeb {
    Q_DISABLE_COPY_MOVE(ProfiloWeb)
public:
    ProfiloWeb();

    QWebEngineProfile *profilo() const { return m_profilo; }
    // Forgets what earlier pages left behind.
    void svuota();

private:
    QWebEngineProfile *m_profilo;
};

} // namespace zuvora
