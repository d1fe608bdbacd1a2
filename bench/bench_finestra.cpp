// How fast the window draws and how much it costs a run. No display is needed; what one adds is
// measured by finestra.py.

#include "Ambiente.h"
#include "Applicazione.h"
#include "Form1.h"
#include "LibreriaCarte.h"
#include "Stampe.h"
#include "modCarte.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

constexpr double Taglie = 10000;

// The window of the whole program, made once.
Form1& Finestra()
{
    static Form1* finestra = [] {
        auto* nuova = new Form1;
        nuova->ImpostaAmbiente();
        Stampe::AmbienteInUso.Apri = [](const std::string&, StileFinestra) {};
        ImpostaFileCarte(SCALVINO_RISORSE "/carte.svg");
        if (!nuova->Carica()) std::abort();
        nuova->show();
        QCoreApplication::processEvents();
        return nuova;
    }();
    return *finestra;
}

template <typename Tipo>
Tipo& Controllo(const char* nome)
{
    return *Finestra().findChild<Tipo*>(QString::fromLatin1(nome));
}

// One press of the button for the next coup, all cards drawn before: under 3 ms is asked.
void SchermataColpo(benchmark::State& stato)
{
    auto& mescola = Controllo<QPushButton>("cmdMescola");
    auto& colpo = Controllo<QPushButton>("cmdColpo");
    auto& annulla = Controllo<QPushButton>("cmdCancel");
    mescola.click();
    while (colpo.isEnabled()) colpo.click();
    annulla.click();
    mescola.click();
    for (auto _ : stato) {
        if (!colpo.isEnabled()) {
            stato.PauseTiming();
            annulla.click();
            mescola.click();
            stato.ResumeTiming();
        }
        colpo.click();
    }
    annulla.click();
}
BENCHMARK(SchermataColpo)->Unit(benchmark::kMillisecond);

// The first card at a new density is drawn from its curves.
void TutteLeCarteDaFreddo(benchmark::State& stato)
{
    Finestra();
    const auto rapporto = static_cast<double>(stato.range(0));
    Tela tela{QImage(100, 100, QImage::Format_RGB32), rapporto};
    for (auto _ : stato) {
        stato.PauseTiming();
        std::int32_t misura = 0;
        cdtInit(misura, misura);
        stato.ResumeTiming();
        for (std::int32_t carta = 0; carta < 52; ++carta)
            cdtDraw(tela, 0, 0, carta, ModoFaccia, {});
        cdtDraw(tela, 0, 0, DorsoCarta, ModoDorso, {});
    }
}
BENCHMARK(TutteLeCarteDaFreddo)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// The same run bare and in the window; at most three times as long is asked.
void DiecimilaTaglieNude(benchmark::State& stato)
{
    Finestra();
    const auto ambiente = Stampe::AmbienteInUso;
    Stampe::AmbienteInUso = Stampe::AmbienteNeutro();
    for (auto _ : stato) benchmark::DoNotOptimize(Stampe::SoloTotali(Taglie, {}));
    Stampe::AmbienteInUso = ambiente;
}
BENCHMARK(DiecimilaTaglieNude)->Unit(benchmark::kMillisecond);

void DiecimilaTaglieInFinestra(benchmark::State& stato)
{
    Controllo<QCheckBox>("chkStat").setChecked(true);
    Controllo<QRadioButton>("optStampa3").setChecked(true);
    Controllo<QLineEdit>("numTaglie").setText(QStringLiteral("10000"));
    for (auto _ : stato) Controllo<QPushButton>("cmdTaglie").click();
}
BENCHMARK(DiecimilaTaglieInFinestra)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    Applicazione applicazione(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    delete &Finestra();
    cdtTerm();
    return 0;
}
