// Whole shoes, a million of them: what must hold after each, and the odds of their first coups.

#include "Statistica.h"
#include "modCarte.h"
#include "quote_esatte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace modCarte;
using namespace statistica;

namespace {

constexpr std::uint64_t Seme = 1;
constexpr std::size_t PrimaDelGioco = 5; // index of the first card that is not cancelled

// One number per outcome, in the order of StatisticheTaglia.
using Conteggi = std::array<std::int64_t, NumeroEsiti>;

// The outcomes of one coup as counts of 0 and 1.
Conteggi EsitiContati(const RecordColpo& record)
{
    const bool nero = record.Esito() == "N";
    const bool rosso = record.Esito() == "R";
    const bool pari = record.Esito() == "E";
    const bool colore = record.Colore() == "C";
    const bool inverso = record.Colore() == "I";
    const bool trentuno = pari && record.TotaleNero() == "31";
    return {nero,     rosso,          colore,          inverso,         pari,
            trentuno, nero && colore, nero && inverso, rosso && colore, rosso && inverso};
}

// ---- What must hold after every shoe -----------------------------------------------------------

// Text of every code with a separator, since putting it together costs more than the shoe.
const std::array<std::string, CarteTaglia + 1>& TestiCarte()
{
    static const auto testi = [] {
        std::array<std::string, CarteTaglia + 1> fatti;
        for (std::int16_t codice = 1; codice <= CarteTaglia; ++codice) {
            fatti[static_cast<std::size_t>(codice)] = TestoCarta(codice) + "#";
        }
        return fatti;
    }();
    return testi;
}

// The cards of Mazzo from index 5 on are those of the coups, in this order.
bool CarteTutteEUnaVolta()
{
    thread_local std::string dalMazzo;
    thread_local std::string daiColpi;
    dalMazzo.clear();
    daiColpi.clear();
    const auto& testi = TestiCarte();
    for (std::size_t i = PrimaDelGioco; i < Mazzo.size(); ++i) {
        dalMazzo += testi[static_cast<std::size_t>(Mazzo[i])];
    }
    const auto& colpi = Colpi;
    for (std::size_t i = 1; i < colpi.size(); ++i) {
        const RecordColpo record(colpi[i]);
        for (const auto& mano : {record.Nero(), record.Rosso()}) {
            if (!mano.Testo().empty()) daiColpi.append(mano.Testo()).append(1, '#');
        }
    }
    return daiColpi == dalMazzo;
}

bool AnnullateLePrimeCinque()
{
    std::string attese = "0";
    for (std::size_t i = 0; i < PrimaDelGioco; ++i) attese.append(",").append(TestoCarta(Mazzo[i]));
    return Colpi[0] == attese;
}

bool NumeriInFila()
{
    const auto& colpi = Colpi;
    for (std::size_t i = 0; i < colpi.size(); ++i) {
        if (RecordColpo(colpi[i]).Numero() != std::to_string(i)) return false;
    }
    return true;
}

// Every complete coup is counted, the last record is not.
bool ContiDaiRecord()
{
    Conteggi conti{};
    const auto& colpi = Colpi;
    for (std::size_t i = 1; i < colpi.size(); ++i) {
        const Conteggi colpo = EsitiContati(RecordColpo(colpi[i]));
        const bool completo = colpo[0] + colpo[1] + colpo[4] == 1; // Nero, Rosso or Pari
        if (completo != (i + 1 < colpi.size())) return false;
        for (std::size_t j = 0; j < conti.size(); ++j) conti[j] += colpo[j];
    }
    const auto& s = Statistiche;
    const std::array<double, NumeroEsiti> contati = {
        s.VinceNero,     s.VinceRosso, s.Colore,      s.Inverso,     s.Pari,
        s.TrentunoApres, s.NeroColore, s.NeroInverso, s.RossoColore, s.RossoInverso};
    return std::equal(conti.begin(), conti.end(), contati.begin());
}

bool IdentitaDelleStatistiche(double completi)
{
    const auto& s = Statistiche;
    const double combinazioni = s.NeroColore + s.NeroInverso + s.RossoColore + s.RossoInverso;
    return combinazioni == s.VinceNero + s.VinceRosso && combinazioni == s.Colore + s.Inverso &&
           combinazioni + s.Pari == completi;
}

// Name of the first thing that does not hold for the shoe just simulated; empty when all do.
std::string_view Difetto()
{
    constexpr double minimo = 20;
    constexpr double massimo = 38; // 307 cards, at least 8 a coup
    const auto ultimo = static_cast<double>(Colpi.size()) - 1;
    const double completi = ultimo - 1;
    if (Posizione != 313) return "Posizione";
    if (FineTaglia != Vero) return "FineTaglia";
    if (NumeroColpo != ultimo) return "NumeroColpo";
    if (completi < minimo || completi > massimo) return "numero dei colpi";
    if (!NumeriInFila()) return "numero nel record";
    if (!AnnullateLePrimeCinque()) return "carte annullate";
    if (!IdentitaDelleStatistiche(completi)) return "identita di Statistiche";
    if (!ContiDaiRecord()) return "conti di Statistiche";
    if (!CarteTutteEUnaVolta()) return "carte";
    return {};
}

// Bytes in use on the heap; nothing where it cannot be told. The sanitizers keep freed memory for
// a while and find leaks by themselves.
std::optional<double> MemoriaInUso()
{
#if defined(__GLIBC__) && !defined(SCALVINO_CON_SANITIZER)
    const auto conti = mallinfo2();
    return static_cast<double>(conti.uordblks) + static_cast<double>(conti.hblkhd);
#else
    return std::nullopt;
#endif
}

// ---- First coups -------------------------------------------------------------------------------

constexpr std::array<std::string_view, NumeroEsiti> NomiEsiti = {
    "VinceNero",     "VinceRosso", "Colore",      "Inverso",     "Pari",
    "TrentunoApres", "NeroColore", "NeroInverso", "RossoColore", "RossoInverso"};

std::array<double, NumeroEsiti> InOrdine(const quote::QuotePrimoColpo& q)
{
    return {q.vinceNero,     q.vinceRosso, q.colore,      q.inverso,     q.pari,
            q.trentunoApres, q.neroColore, q.neroInverso, q.rossoColore, q.rossoInverso};
}

// How often each thing came in the first coups.
struct PrimiColpi
{
    std::int64_t Colpi = 0;
    Conteggi Esiti{};
    std::array<std::int64_t, quote::kTotali> TotaliNero{};
    std::array<std::int64_t, quote::kTotali> TotaliRosso{};
    std::array<std::int64_t, quote::kMaxCarteColpo + 1> Carte{};

    void Conta(std::string_view testo);
    void Controlla(const quote::QuotePrimoColpo& quote) const;
};

std::size_t IndiceTotale(std::string_view totale)
{
    return static_cast<std::size_t>(std::stoul(std::string(totale))) - quote::kPrimoTotale;
}

void PrimiColpi::Conta(std::string_view testo)
{
    const RecordColpo record(testo);
    const Conteggi esiti = EsitiContati(record);
    for (std::size_t i = 0; i < esiti.size(); ++i) Esiti[i] += esiti[i];
    ++Colpi;
    ++TotaliNero.at(IndiceTotale(record.TotaleNero()));
    ++TotaliRosso.at(IndiceTotale(record.TotaleRosso()));
    ++Carte.at(static_cast<std::size_t>(record.NumeroCarte()));
}

void PrimiColpi::Controlla(const quote::QuotePrimoColpo& q) const
{
    const auto quoteEsiti = InOrdine(q);
    for (std::size_t i = 0; i < Esiti.size(); ++i) {
        ControllaZ(std::string(NomiEsiti[i]), ZConteggio(Esiti[i], Colpi, quoteEsiti[i]));
    }
    for (std::size_t i = 0; i < TotaliNero.size(); ++i) {
        const std::string totale = std::to_string(quote::kPrimoTotale + i);
        ControllaZ("TotaleNero" + totale, ZConteggio(TotaliNero[i], Colpi, q.totaleNero[i]));
        ControllaZ("TotaleRosso" + totale, ZConteggio(TotaliRosso[i], Colpi, q.totaleRosso[i]));
    }
    ControllaZ("TotaliNero", ZDistribuzione(TotaliNero, q.totaleNero));
    ControllaZ("TotaliRosso", ZDistribuzione(TotaliRosso, q.totaleRosso));
    ControllaZ("CarteColpo", ZDistribuzione(Carte, q.carteColpo));
    for (std::size_t k = 0; k < Carte.size(); ++k) {
        if (q.carteColpo[k] > 0) continue;
        EXPECT_EQ(Carte[k], 0) << k << " carte";
    }
    const std::array<std::int64_t, 5> combinazioni = {Esiti[4], Esiti[6], Esiti[7], Esiti[8],
                                                      Esiti[9]};
    const std::array<double, 5> attese = {q.pari, q.neroColore, q.neroInverso, q.rossoColore,
                                          q.rossoInverso};
    ControllaZ("Combinazioni", ZDistribuzione(combinazioni, attese));
}

} // namespace

TEST(QuoteEsatte, LeCostantiSonoQuelleRicalcolate)
{
    const auto ricalcolate = InOrdine(quote::CalcolaQuotePrimoColpo());
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        EXPECT_EQ(Esiti<double>[i].Nome, NomiEsiti[i]);
        EXPECT_NEAR(Esiti<double>[i].QuotaPrimoColpo, ricalcolate[i], 1e-12) << NomiEsiti[i];
    }
}

// One pass for both, since the first coup of every shoe is there anyway.
TEST(TaglieSimulate, TornanoTutteEIPrimiColpiSeguonoLeQuoteEsatte)
{
    constexpr std::int64_t avviate = 10'000;
    constexpr double unMebibyte = 1 << 20;
    PrimiColpi primi;
    std::optional<double> allInizio;
    for (std::int64_t i = 0; i < Quante(1'000'000); ++i) {
        if (i == avviate) allInizio = MemoriaInUso();
        AvviaSeme(Seme, static_cast<std::uint64_t>(i));
        SimulaTaglia();
        ASSERT_EQ(Difetto(), "") << "taglia " << i;
        primi.Conta(Colpi[1]);
    }
    if (allInizio) {
        const double cresciuta = MemoriaInUso().value() - *allInizio;
        ::testing::Test::RecordProperty("ByteCresciuti", std::to_string(cresciuta));
        EXPECT_LT(std::abs(cresciuta), unMebibyte);
    }
    primi.Controlla(quote::CalcolaQuotePrimoColpo());
}
