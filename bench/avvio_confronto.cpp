// zuvora-bench-avvio INSTALLATION [RUNS]: starts the empty dialog and the main panel in turn, and prints the medians of
// time to the painted window and of peak memory, and their ratios.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Corsa {
    double ms = -1;
    double mib = 0;
};

long long oraMicro() {
    timespec ora{};
    clock_gettime(CLOCK_MONOTONIC, &ora);
    return static_cast<long long>(ora.tv_sec) * 1000000 + ora.tv_nsec / 1000;
}

Corsa corri(const std::string &programma, const char *argomento) {
    int canale[2];
    if (pipe(canale) != 0)
        return {};
    const long long inizio = oraMicro();
    const pid_t figlio = fork();
    if (figlio == 0) {
        dup2(canale[1], STDOUT_FILENO);
        close(canale[0]);
        execl(programma.c_str(), programma.c_str(), argomento, nullptr);
        _exit(127);
    }
    close(canale[1]);
    char testo[64] = {};
    const ssize_t letti = read(canale[0], testo, sizeof testo - 1);
    close(canale[0]);
    rusage uso{};
    int stato = 0;
    wait4(figlio, &stato, 0, &uso);
    if (letti <= 0)
        return {};
    return {static_cast<double>(std::strtoll(testo, nullptr, 10) - inizio) / 1000.0,
            static_cast<double>(uso.ru_maxrss) / 1024.0};
}

double mediana(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc < 2) {
        std::fprintf(stderr, "uso: zuvora-bench-avvio INSTALLAZIONE [CORSE]\n");
        return 2;
    }
    const int corse = argc > 2 ? std::atoi(argv[2]) : 21;
    const std::string cartella = std::string(argv[0]).substr(0, std::string(argv[0]).rfind('/') + 1);
    std::vector<double> tempi[2];
    std::vector<double> memorie[2];
    const char *programmi[2] = {"zuvora-avvio-vuoto", "zuvora-avvio-pannello"};
    for (int i = 0; i < corse; ++i)
        for (int quale = 0; quale < 2; ++quale) {
            const Corsa corsa = corri(cartella + programmi[quale], argv[1]);
            if (corsa.ms < 0) {
                std::fprintf(stderr, "%s non ha mostrato la finestra\n", programmi[quale]);
                return 1;
            }
            tempi[quale].push_back(corsa.ms);
            memorie[quale].push_back(corsa.mib);
        }
    const double ms[2] = {mediana(tempi[0]), mediana(tempi[1])};
    const double mib[2] = {mediana(memorie[0]), mediana(memorie[1])};
    std::printf("tempo:   dialogo vuoto %.1f ms, pannello %.1f ms, rapporto %.2f (limite 1.25)\n", ms[0], ms[1],
                ms[1] / ms[0]);
    std::printf("memoria: dialogo vuoto %.1f MiB, pannello %.1f MiB, rapporto %.2f (limite 1.35)\n", mib[0], mib[1],
                mib[1] / mib[0]);
    return 0;
}
