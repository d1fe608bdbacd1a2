#include "Dati.h"

#include "QuoteEsatte.h"
#include "modCarte.h"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <cmath>

namespace cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::int64_t CarteGiocate = modCarte::CarteTaglia - modCarte::NumeroCarteAnnullate;

// What is not known (the error of one single shoe) is null.
Json Numero(double valore)
{
    return std::isfinite(valore) ? Json(valore) : Json();
}

Json EsitoJson(const Stampe::Studio& studio, std::size_t esito)
{
    const auto stima = Stampe::StimaTasso(studio, esito);
    const auto intervallo = Stampe::Intervallo95(stima, studio.Taglie());
    return {{"totale", studio.Esito(esito).Totale},
            {"tasso", Numero(stima.Tasso)},
            {"errore_standard", Numero(stima.ErroreStandard)},
            {"intervallo95",
             {intervallo ? Json(intervallo->Minimo) : Json(),
              intervallo ? Json(intervallo->Massimo) : Json()}}};
}

Json PrimoColpoJson(const Stampe::Studio& studio, std::size_t esito)
{
    const double esatta = QuotePrimoColpo.at(esito).Probabilita;
    const auto totale = studio.Esito(esito).PrimoColpo;
    return {{"totale", totale},
            {"tasso", Numero(static_cast<double>(totale) / static_cast<double>(studio.Taglie()))},
            {"esatta", esatta},
            {"z", Numero(Stampe::ScartoPrimoColpo(studio, esito, esatta))}};
}

Json InJson(const Stampe::TotaliReport& totali, const Stampe::Studio& studio, const Corsa& corsa)
{
    Json dati;
    dati["versione"] = Versione();
    dati["seme"] = corsa.Seme ? Json(*corsa.Seme) : Json();
    dati["secondi"] = corsa.Secondi;
    dati["taglie"] = studio.Taglie();
    dati["report"] = {{"colpi", totali.Colpi}, {"carte", totali.CarteUsate}};
    dati["completi"] = {{"colpi", studio.ColpiCompleti()},
                        {"carte", CarteGiocate * studio.Taglie()}};
    for (std::size_t i = 0; i < Stampe::NumeroEsiti; ++i) {
        const std::string nome(QuotePrimoColpo[i].Esito);
        dati["esiti"][nome] = EsitoJson(studio, i);
    }
    for (std::size_t i = 0; i < Stampe::NumeroEsiti; ++i) {
        const std::string nome(QuotePrimoColpo[i].Esito);
        dati["primo_colpo"][nome] = PrimoColpoJson(studio, i);
    }
    return dati;
}

// ---- CSV: the same values, one row each, columns that do not apply empty ----------------------

std::string Cella(const Json& valore)
{
    if (valore.is_null()) return "";
    return valore.is_string() ? valore.get<std::string>() : valore.dump();
}

void RigaCsv(std::string& testo, const std::array<std::string, 9>& celle)
{
    for (std::size_t i = 0; i < celle.size(); ++i) {
        if (i > 0) testo.push_back(',');
        testo += celle[i];
    }
    testo.push_back('\n');
}

std::string InCsv(const Json& dati)
{
    std::string testo;
    RigaCsv(testo, {"sezione", "voce", "valore", "tasso", "errore_standard", "minimo95",
                    "massimo95", "esatta", "z"});
    for (const auto* voce : {"versione", "seme", "secondi", "taglie"}) {
        RigaCsv(testo, {"corsa", voce, Cella(dati[voce])});
    }
    for (const auto* sezione : {"report", "completi"}) {
        for (const auto& [voce, valore] : dati[sezione].items()) {
            RigaCsv(testo, {sezione, voce, Cella(valore)});
        }
    }
    for (const auto& [voce, v] : dati["esiti"].items()) {
        RigaCsv(testo,
                {"esiti", voce, Cella(v["totale"]), Cella(v["tasso"]), Cella(v["errore_standard"]),
                 Cella(v["intervallo95"][0]), Cella(v["intervallo95"][1])});
    }
    for (const auto& [voce, v] : dati["primo_colpo"].items()) {
        RigaCsv(testo, {"primo_colpo", voce, Cella(v["totale"]), Cella(v["tasso"]), "", "", "",
                        Cella(v["esatta"]), Cella(v["z"])});
    }
    return testo;
}

} // namespace

std::string TestoDati(FormaDati forma, const Stampe::TotaliReport& totali,
                      const Stampe::Studio& studio, const Corsa& corsa)
{
    constexpr int rientro = 2;
    const Json dati = InJson(totali, studio, corsa);
    return forma == FormaDati::Csv ? InCsv(dati) : dati.dump(rientro) + "\n";
}

} // namespace cli
