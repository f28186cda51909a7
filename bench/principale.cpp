// Runs the benchmarks and prints the comparisons: of two that are called "X/nostro" and "X/metro" the ratio of their
// statistics "min" (the run that the machine disturbed least), and the limit that "nostro" states in its counter
// "limite". A "nostro" that measures both sides itself gives the other one's milliseconds in its counter "metro". What
// isn't repeated counts as it is.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

struct Misura {
    double tempo = 0; // milliseconds
    double limite = 0;
};

class Confronti : public benchmark::ConsoleReporter {
public:
    Confronti() : ConsoleReporter(OO_Defaults) {}

    void ReportRuns(const std::vector<Run> &giri) override {
        std::vector<Run> minimi;
        for (const Run &giro : giri) {
            const bool sola = giro.run_type == Run::RT_Iteration && giro.repetitions <= 1;
            if (giro.aggregate_name != "min" && !giro.error_occurred && !sola)
                continue;
            minimi.push_back(giro);
            const std::string nome = giro.run_name.function_name;
            const auto contatore = [&](const char *quale) {
                const auto c = giro.counters.find(quale);
                return c == giro.counters.end() ? 0.0 : c->second.value;
            };
            m_misure[nome] = {giro.GetAdjustedRealTime(), contatore("limite")};
            if (const auto taglio = nome.rfind("/nostro"); taglio != std::string::npos && contatore("metro") > 0)
                m_misure[nome.substr(0, taglio) + "/metro"] = {contatore("metro"), 0};
        }
        ConsoleReporter::ReportRuns(minimi);
    }

    void Finalize() override {
        std::printf("\n%-28s %12s %12s %8s %8s\n", "confronto", "nostro ms", "metro ms", "rapporto", "limite");
        for (const auto &[nome, nostra] : m_misure) {
            const auto taglio = nome.rfind("/nostro");
            if (taglio == std::string::npos)
                continue;
            const auto metro = m_misure.find(nome.substr(0, taglio) + "/metro");
            if (metro == m_misure.end())
                continue;
            const double a = nostra.tempo;
            const double b = metro->second.tempo;
            std::printf("%-28s %12.3f %12.3f %8.2f %8.2f%s\n", nome.substr(0, taglio).c_str(), a, b, a / b,
                        nostra.limite, nostra.limite > 0 && a / b > nostra.limite ? "  OLTRE" : "");
        }
    }

private:
    std::map<std::string, Misura> m_misure;
};

} // namespace

int main(int argc, char **argv) {
    // Both sides of a comparison in turns: a disk that slows down slows both.
    std::string turni = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> argomenti(argv, argv + argc);
    argomenti.insert(argomenti.begin() + 1, turni.data());
    int quanti = static_cast<int>(argomenti.size());
    benchmark::Initialize(&quanti, argomenti.data());
    if (benchmark::ReportUnrecognizedArguments(quanti, argomenti.data()))
        return 1;
    Confronti confronti;
    benchmark::RunSpecifiedBenchmarks(&confronti);
    benchmark::Shutdown();
    return 0;
}
