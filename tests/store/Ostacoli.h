#pragma once

#include <QString>
#include <chrono>
#include <csignal>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Obstacles that a test puts in the store's way, each taken away again at its end.
namespace zuvora::prova {

inline bool creaCoda(const QString &percorso) {
    return mkfifo(percorso.toUtf8().constData(), 0600) == 0;
}

// No file may grow beyond the limit: a disk that is full.
class LimiteFile {
public:
    explicit LimiteFile(qint64 byte) {
        m_segnale = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_prima);
        const rlimit limite{static_cast<rlim_t>(byte), m_prima.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~LimiteFile() {
        setrlimit(RLIMIT_FSIZE, &m_prima);
        std::signal(SIGXFSZ, m_segnale);
    }
    LimiteFile(const LimiteFile &) = delete;
    LimiteFile &operator=(const LimiteFile &) = delete;

private:
    rlimit m_prima{};
    void (*m_segnale)(int);
};

// The administrator's rights laid down: permissions bind again.
class UtenteQualunque {
public:
    UtenteQualunque() : m_prima(geteuid()) {
        if (m_prima == 0 && setresuid(kNessuno, kNessuno, 0) != 0)
            std::abort();
    }
    ~UtenteQualunque() {
        if (m_prima == 0 && setresuid(0, 0, 0) != 0)
            std::abort();
    }
    UtenteQualunque(const UtenteQualunque &) = delete;
    UtenteQualunque &operator=(const UtenteQualunque &) = delete;

private:
    static constexpr uid_t kNessuno = 65534;
    uid_t m_prima;
};

// A process that runs the SQL text on the file and keeps what it got until the end of this object.
class AltroProcesso {
public:
    AltroProcesso(const QString &percorso, const char *sql) {
        int pronto[2];
        if (pipe(pronto) != 0 || pipe(m_fine) != 0)
            std::abort();
        const QByteArray file = percorso.toUtf8();
        m_figlio = fork();
        if (m_figlio == 0)
            figlio(file.constData(), sql, pronto[1]);
        close(pronto[1]);
        close(m_fine[0]);
        char c = 0;
        m_riuscito = read(pronto[0], &c, 1) == 1;
        close(pronto[0]);
    }
    ~AltroProcesso() {
        close(m_fine[1]);
        waitpid(m_figlio, nullptr, 0);
    }
    AltroProcesso(const AltroProcesso &) = delete;
    AltroProcesso &operator=(const AltroProcesso &) = delete;

    // Lets go by itself after the time.
    void finisciFra(std::chrono::milliseconds tempo) {
        const int ms = static_cast<int>(tempo.count());
        if (write(m_fine[1], &ms, sizeof ms) != sizeof ms)
            std::abort();
    }

private:
    [[noreturn]] void figlio(const char *file, const char *sql, int pronto) const {
        close(m_fine[1]);
        sqlite3 *db = nullptr;
        sqlite3_open(file, &db);
        // Stepped, not run through: a select keeps its lock.
        const char *resto = sql;
        while (*resto != '\0') {
            sqlite3_stmt *s = nullptr;
            if (sqlite3_prepare_v2(db, resto, -1, &s, &resto) != SQLITE_OK)
                _exit(1);
            sqlite3_step(s);
        }
        if (write(pronto, "p", 1) != 1)
            _exit(1);
        int ms = 0;
        if (read(m_fine[0], &ms, sizeof ms) == sizeof ms)
            usleep(static_cast<useconds_t>(ms) * 1000);
        _exit(0);
    }

    pid_t m_figlio = -1;
    int m_fine[2] = {-1, -1};
    bool m_riuscito = false;
};

} // namespace zuvora::prova
