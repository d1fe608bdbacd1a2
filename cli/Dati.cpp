// The totals as rows of values, and these as JSON or CSV. The text is built piece by piece: a tree
// of JSON values takes memory even while it is destroyed, and ends the program when there is none.
#include "Dati.h"

#include "Aiuto.h"
#include "Numeri.h"
#include "modCarte.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <vector>

namespace cli {

namespace {

constexpr std::int64_t CarteGiocate = modCarte::CarteTaglia - modCarte::NumeroCarteAnnullate;

constexpr std::string_view Ignoto = "null";

// The columns of CSV after section and name.
enum Colonna : std::uint8_t
{
    Valore,
    Tasso,
    ErroreStandard,
    Minimo95,
    Massimo95,
    Esatta,
    Z,
    NumeroColonne,
};

// One entry: its values as JSON writes them, empty where a column does not apply to it.
struct Riga
{
    std::string_view Sezione;
    std::string_view Voce;
    std::array<std::string, NumeroColonne> Valori;
};

constexpr std::string_view DellaCorsa = "corsa";
constexpr std::string_view Esiti = "esiti";
constexpr std::string_view PrimoColpo = "primo_colpo";

// What is not known (the error of one single shoe) is null.
std::string Numero(double valore)
{
    return std::isfinite(valore) ? nlohmann::json(valore).dump() : std::string(Ignoto);
}

std::string Numero(std::int64_t valore)
{
    return TestoNumero(valore);
}

Riga RigaEsito(const Stampe::Studio& studio, std::size_t esito)
{
    const auto stima = Stampe::StimaTasso(studio, esito);
    const auto intervallo = Stampe::Intervallo95(stima, studio.Taglie());
    return {Esiti,
            modCarte::Esiti<double>.at(esito).Nome,
            {Numero(studio.Esito(esito).Totale), Numero(stima.Tasso), Numero(stima.ErroreStandard),
             intervallo ? Numero(intervallo->Minimo) : std::string(Ignoto),
             intervallo ? Numero(intervallo->Massimo) : std::string(Ignoto), "", ""}};
}

Riga RigaPrimoColpo(const Stampe::Studio& studio, std::size_t esito)
{
    const double esatta = modCarte::Esiti<double>.at(esito).QuotaPrimoColpo;
    const auto totale = studio.Esito(esito).PrimoColpo;
    return {PrimoColpo,
            modCarte::Esiti<double>.at(esito).Nome,
            {Numero(totale),
             Numero(static_cast<double>(totale) / static_cast<double>(studio.Taglie())), "", "", "",
             Numero(esatta), Numero(Stampe::ScartoPrimoColpo(studio, esito, esatta))}};
}

std::vector<Riga> Righe(const Stampe::TotaliReport& totali, const Stampe::Studio& studio,
                        const NotizieCorsa& corsa)
{
    const auto una = [](std::string_view sezione, std::string_view voce, std::string valore) {
        return Riga{sezione, voce, {std::move(valore)}};
    };
    std::vector<Riga> righe;
    righe.push_back(una(DellaCorsa, "versione", "\"" + Versione() + "\""));
    righe.push_back(
        una(DellaCorsa, "seme", corsa.Seme ? std::to_string(*corsa.Seme) : std::string(Ignoto)));
    righe.push_back(una(DellaCorsa, "secondi", Numero(corsa.Secondi)));
    righe.push_back(una(DellaCorsa, "taglie", Numero(studio.Taglie())));
    righe.push_back(una("report", "colpi", Numero(totali.Colpi)));
    righe.push_back(una("report", "carte", Numero(totali.CarteUsate)));
    righe.push_back(una("completi", "colpi", Numero(studio.ColpiCompleti())));
    righe.push_back(una("completi", "carte", Numero(CarteGiocate * studio.Taglie())));
    for (std::size_t i = 0; i < modCarte::NumeroEsiti; ++i) righe.push_back(RigaEsito(studio, i));
    for (std::size_t i = 0; i < modCarte::NumeroEsiti; ++i) {
        righe.push_back(RigaPrimoColpo(studio, i));
    }
    return righe;
}

// ---- JSON -------------------------------------------------------------------------------------

// A text with a line for each value, indented by two blanks a level. Names are the program's own
// and need no escapes.
class TestoJson
{
public:
    // An object or, with "[", a list.
    void Apri(std::string_view nome, char parentesi = '{')
    {
        Inizia(nome);
        m_testo.push_back(parentesi);
        ++m_livello;
        m_primo = true;
    }

    void Aggiungi(std::string_view nome, std::string_view valore)
    {
        Inizia(nome);
        m_testo.append(valore);
    }

    void Chiudi(char parentesi = '}')
    {
        --m_livello;
        m_primo = false;
        RigaNuova();
        m_testo.push_back(parentesi);
    }

    const std::string& Testo() const { return m_testo; }

private:
    // Without a name: in a list, or the whole itself.
    void Inizia(std::string_view nome)
    {
        if (!m_primo) m_testo.push_back(',');
        m_primo = false;
        if (m_livello > 0) RigaNuova();
        if (!nome.empty()) m_testo.append("\"").append(nome).append("\": ");
    }

    void RigaNuova() { m_testo.append("\n").append(2 * m_livello, ' '); }

    std::string m_testo;
    std::size_t m_livello = 0;
    bool m_primo = true;
};

void AggiungiEsito(TestoJson& json, const Riga& riga)
{
    json.Apri(riga.Voce);
    json.Aggiungi("totale", riga.Valori[Valore]);
    json.Aggiungi("tasso", riga.Valori[Tasso]);
    if (riga.Sezione == Esiti) {
        json.Aggiungi("errore_standard", riga.Valori[ErroreStandard]);
        json.Apri("intervallo95", '[');
        json.Aggiungi("", riga.Valori[Minimo95]);
        json.Aggiungi("", riga.Valori[Massimo95]);
        json.Chiudi(']');
    } else {
        json.Aggiungi("esatta", riga.Valori[Esatta]);
        json.Aggiungi("z", riga.Valori[Z]);
    }
    json.Chiudi();
}

std::string InJson(const std::vector<Riga>& righe)
{
    TestoJson json;
    json.Apri("");
    std::string_view sezione = DellaCorsa; // whose entries stand in the whole itself
    for (const auto& riga : righe) {
        if (riga.Sezione != sezione) {
            if (sezione != DellaCorsa) json.Chiudi();
            sezione = riga.Sezione;
            json.Apri(sezione);
        }
        if (sezione == Esiti || sezione == PrimoColpo) AggiungiEsito(json, riga);
        else json.Aggiungi(riga.Voce, riga.Valori[Valore]);
    }
    json.Chiudi();
    json.Chiudi();
    return json.Testo() + "\n";
}

// ---- CSV: the same values, one row each, columns that do not apply empty ----------------------

std::string Cella(std::string valore)
{
    if (valore == Ignoto) return "";
    std::erase(valore, '"');
    return valore;
}

std::string InCsv(const std::vector<Riga>& righe)
{
    std::string testo = "sezione,voce,valore,tasso,errore_standard,minimo95,massimo95,esatta,z\n";
    for (const auto& riga : righe) {
        testo.append(riga.Sezione).append(",").append(riga.Voce);
        for (const auto& valore : riga.Valori) testo.append(",").append(Cella(valore));
        testo.push_back('\n');
    }
    return testo;
}

} // namespace

std::string TestoDati(FormaDati forma, const Stampe::TotaliReport& totali,
                      const Stampe::Studio& studio, const NotizieCorsa& corsa)
{
    const auto righe = Righe(totali, studio, corsa);
    return forma == FormaDati::Csv ? InCsv(righe) : InJson(righe);
}

} // namespace cli
