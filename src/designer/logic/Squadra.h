#pragma once

#include <QThread>
#include <QThreadPool>
#include <future>
#include <memory>

namespace zuvora {

// Helper threads for work that needs no window: decoding and stretching of pictures. What was given out is waited for
// by asking for its result; work that nobody has begun is dropped with the team.
class Squadra {
public:
    // With one thread nobody helps: the work is done when its result is asked for.
    explicit Squadra(int fili = QThread::idealThreadCount()) { m_fili.setMaxThreadCount(fili); }
    ~Squadra() { m_fili.clear(); }
    Squadra(const Squadra &) = delete;
    Squadra &operator=(const Squadra &) = delete;

    template <class F> auto affida(F lavoro) {
        using Esito = std::invoke_result_t<F>;
        if (m_fili.maxThreadCount() < 2)
            return std::async(std::launch::deferred, std::move(lavoro)).share();
        auto compito = std::make_shared<std::packaged_task<Esito()>>(std::move(lavoro));
        std::shared_future<Esito> esito = compito->get_future().share();
        m_fili.start([compito] { (*compito)(); });
        return esito;
    }

private:
    QThreadPool m_fili;
};

} // namespace zuvora
