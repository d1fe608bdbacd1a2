// How fast PDF reports are written.
//
//   bench_pdf                       shoes per second from 1 to 80 shoes, with fonts repeated and
//                                   shared (options of Google Benchmark apply)
//   bench_pdf --istruzioni N [M]    writes the full report of N shoes once, dealt before with a
//                                   fixed seed, for counting the instructions of the writing, and
//                                   prints its bytes; M: u for shared fonts, 1 to 9 for a
//                                   conforming document compressed at that level

#include "Ambiente.h"
#include "Stampe.h"
#include "modCarte.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What callgrind looks for: it counts while this runs, without the dealing.
extern "C" [[gnu::noinline]] void ScriviReportPdf(double taglie)
{
    Stampe::StampaPdf(taglie);
}

namespace {

std::vector<std::vector<std::int16_t>> Mescolate(std::int64_t taglie)
{
    std::vector<std::vector<std::int16_t>> mazzi;
    for (std::int64_t i = 1; i <= taglie; ++i) {
        modCarte::AvviaSeme(1, static_cast<std::uint64_t>(i));
        modCarte::MescolaMazzo();
        mazzi.emplace_back(modCarte::Mazzo.begin(), modCarte::Mazzo.end());
    }
    return mazzi;
}

// A report folder of its own, removed at the end.
class Cartella
{
public:
    Cartella()
        : m_nome((std::filesystem::temp_directory_path() / "bench_pdf_XXXXXX").string())
    {
        if (::mkdtemp(m_nome.data()) == nullptr) std::abort();
    }
    ~Cartella() { std::filesystem::remove_all(m_nome); }
    Cartella(const Cartella&) = delete;
    Cartella& operator=(const Cartella&) = delete;
    std::string Nome() const { return m_nome + "/"; }
    std::int64_t ByteDelReport() const
    {
        return static_cast<std::int64_t>(std::filesystem::file_size(Nome() + "taglie.pdf"));
    }

private:
    std::string m_nome;
};

void Prepara(const Cartella& cartella, std::int64_t taglie, std::string_view modo)
{
    Stampe::Ambiente ambiente = Stampe::AmbienteNeutro();
    ambiente.Cartella = cartella.Nome();
    ambiente.SeparatoriNumeri = {",", "."};
    ambiente.CaratteriUnici = modo == "u";
    ambiente.Compatto = !modo.empty() && modo != "u";
    if (ambiente.Compatto) ambiente.LivelloCompatto = modo.front() - '0';
    ambiente.PreparaTaglia = [mazzi = Mescolate(taglie)](std::int64_t taglia) {
        modCarte::ImpostaMazzo(mazzi.at(static_cast<std::size_t>(taglia) - 1));
    };
    Stampe::AmbienteInUso = std::move(ambiente);
}

void Report(benchmark::State& stato)
{
    const Cartella cartella;
    Prepara(cartella, stato.range(0), stato.range(1) != 0 ? "u" : "");
    for (auto _ : stato) ScriviReportPdf(static_cast<double>(stato.range(0)));
    stato.SetItemsProcessed(stato.iterations() * stato.range(0));
    stato.SetBytesProcessed(stato.iterations() * cartella.ByteDelReport());
}

BENCHMARK(Report)
    ->ArgNames({"taglie", "unici"})
    ->ArgsProduct({{1, 5, 20, 40, 80}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2 && std::string_view(argv[1]) == "--istruzioni") {
        const Cartella cartella;
        const auto taglie = std::strtoll(argv[2], nullptr, 10);
        Prepara(cartella, taglie, argc > 3 ? argv[3] : "");
        ScriviReportPdf(static_cast<double>(taglie));
        std::printf("byte %lld\n", static_cast<long long>(cartella.ByteDelReport()));
        Stampe::AmbienteInUso = {};
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    Stampe::AmbienteInUso = {};
    return 0;
}
