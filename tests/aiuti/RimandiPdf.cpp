// Reads what StrutturaPdf.cpp finds where other files have a table.
#include "RimandiPdf.h"

#include "Inflato.h"

#include <charconv>
#include <cstdint>

namespace aiuti {

namespace {

// A whole number of a dictionary, given itself; -1 where it is anything else.
int Intero(const ValorePdf& dizionario, std::string_view chiave)
{
    const ValorePdf* valore = dizionario.Voce(chiave);
    return valore && valore->Tipo == TipoPdf::Numero ? NumeroIntero(valore->Testo) : -1;
}

std::vector<std::size_t> Colonne(const ValorePdf& dizionario)
{
    std::vector<std::size_t> byte;
    const ValorePdf* larghezze = dizionario.Voce("W");
    if (!larghezze || larghezze->Elementi.size() != 3) return {};
    for (const ValorePdf& larghezza : larghezze->Elementi) {
        const int quanti = NumeroIntero(larghezza.Testo);
        if (quanti < 1 || quanti > 8) return {};
        byte.push_back(static_cast<std::size_t>(quanti));
    }
    return byte;
}

std::uint64_t Numero(std::string_view& righe, std::size_t byte)
{
    std::uint64_t numero = 0;
    for (std::size_t i = 0; i < byte; ++i) {
        numero = numero << 8 | static_cast<unsigned char>(righe[i]);
    }
    righe.remove_prefix(byte);
    return numero;
}

// Nothing where the row says what the writer never does.
std::optional<PostoPdf> Posto(std::uint64_t tipo, std::uint64_t dove, std::uint64_t indice)
{
    using Genere = PostoPdf::Genere;
    constexpr std::uint64_t maiPiu = 65535, massimi = 200;
    if (tipo == 0 && dove == 0 && indice == maiPiu) return PostoPdf{};
    if (tipo == 1 && dove > 0 && indice == 0) return PostoPdf{Genere::PerConto, dove, 0};
    if (tipo == 2 && indice < massimi) return PostoPdf{Genere::InFlusso, dove, indice};
    return std::nullopt;
}

// Takes a number and the blank behind it from the front; -1 where there is none.
int Preso(std::string_view& testo)
{
    const auto fine = testo.find(' ');
    const int numero = fine == testo.npos ? -1 : NumeroIntero(testo.substr(0, fine));
    testo.remove_prefix(numero < 0 ? testo.size() : fine + 1);
    return numero;
}

} // namespace

std::optional<std::string> DatiDelFlusso(const ValorePdf& dizionario, std::string_view testo)
{
    constexpr std::string_view fine = "\r\nendstream\r\nendobj\r\n";
    const int lunghezza = Intero(dizionario, "Length");
    const ValorePdf* filtro = dizionario.Voce("Filter");
    if (lunghezza < 0 || !filtro || !filtro->E(TipoPdf::Nome, "FlateDecode")) return std::nullopt;
    const auto byte = static_cast<std::size_t>(lunghezza);
    if (byte > testo.size() || testo.substr(byte) != fine) return std::nullopt;
    return Inflato(testo.substr(0, byte));
}

std::vector<PostoPdf> PostiDegliOggetti(const ValorePdf& dizionario, std::string_view righe)
{
    const auto colonne = Colonne(dizionario);
    const int ampiezza = Intero(dizionario, "Size");
    if (colonne.empty() || ampiezza < 2) return {};
    const std::size_t riga = colonne[0] + colonne[1] + colonne[2];
    if (righe.size() != riga * static_cast<std::size_t>(ampiezza)) return {};
    std::vector<PostoPdf> posti;
    while (!righe.empty()) {
        const auto tipo = Numero(righe, colonne[0]);
        const auto dove = Numero(righe, colonne[1]);
        const auto posto = Posto(tipo, dove, Numero(righe, colonne[2]));
        if (!posto || (posti.empty() && tipo != 0)) return {};
        posti.push_back(*posto);
    }
    return posti;
}

std::vector<OggettoImpacchettato> OggettiImpacchettati(const ValorePdf& dizionario,
                                                       const std::string& dati)
{
    const int quanti = Intero(dizionario, "N");
    const int primo = Intero(dizionario, "First");
    if (quanti < 1 || primo < 0 || static_cast<std::size_t>(primo) > dati.size()) return {};
    std::string_view indice = std::string_view(dati).substr(0, static_cast<std::size_t>(primo));
    const std::string_view corpo = std::string_view(dati).substr(static_cast<std::size_t>(primo));
    std::vector<OggettoImpacchettato> oggetti;
    std::vector<std::size_t> inizi;
    for (int i = 0; i < quanti; ++i) {
        const int numero = Preso(indice), inizio = Preso(indice);
        if (numero < 1 || inizio < 0) return {};
        oggetti.push_back({numero, ""});
        inizi.push_back(static_cast<std::size_t>(inizio));
    }
    inizi.push_back(corpo.size());
    for (std::size_t i = 0; i < oggetti.size(); ++i) {
        if (inizi[i] >= inizi[i + 1] || inizi[i + 1] > corpo.size()) return {};
        oggetti[i].Testo = corpo.substr(inizi[i], inizi[i + 1] - inizi[i]);
    }
    return indice.empty() && inizi[0] == 0 ? oggetti : std::vector<OggettoImpacchettato>();
}

} // namespace aiuti
