// The operators of page contents: where each may stand and what it takes. DocumentoPdf.cpp calls
// it, SintassiPdf.cpp reads the words.
#include "ContenutoPdf.h"

#include "SintassiPdf.h"

#include <algorithm>
#include <map>

namespace aiuti {

namespace {

enum class Luogo
{
    Ovunque,
    SoloTesto,  // between BT and ET
    FuoriTesto, // anywhere else (ISO 32000-1, figure 9)
};

// Operands: n number, N name, s string, a array of numbers, * any count of numbers.
struct Operatore
{
    std::string_view Operandi;
    Luogo Dove = Luogo::Ovunque;
    std::string_view Categoria = {}; // of the resources that its name comes from
};

const std::map<std::string_view, Operatore>& Operatori()
{
    constexpr Luogo fuori = Luogo::FuoriTesto, testo = Luogo::SoloTesto, ovunque = Luogo::Ovunque;
    static const std::map<std::string_view, Operatore> tavola = {
        // Graphics state and colours
        {"q", {"", fuori}},
        {"Q", {"", fuori}},
        {"cm", {"nnnnnn", fuori}},
        {"w", {"n"}},
        {"J", {"n"}},
        {"j", {"n"}},
        {"M", {"n"}},
        {"d", {"an"}},
        {"g", {"n"}},
        {"G", {"n"}},
        {"rg", {"nnn"}},
        {"RG", {"nnn"}},
        {"cs", {"N", ovunque, "ColorSpace"}},
        {"CS", {"N", ovunque, "ColorSpace"}},
        {"scn", {"*N", ovunque, "Pattern"}},
        {"SCN", {"*N", ovunque, "Pattern"}},
        // Paths and objects
        {"m", {"nn", fuori}},
        {"l", {"nn", fuori}},
        {"c", {"nnnnnn", fuori}},
        {"v", {"nnnn", fuori}},
        {"y", {"nnnn", fuori}},
        {"re", {"nnnn", fuori}},
        {"h", {"", fuori}},
        {"n", {"", fuori}},
        {"S", {"", fuori}},
        {"f", {"", fuori}},
        {"B", {"", fuori}},
        {"B*", {"", fuori}},
        {"W", {"", fuori}},
        {"b", {"", fuori}},
        {"Do", {"N", fuori, "XObject"}},
        // Text
        {"BT", {"", fuori}},
        {"ET", {"", testo}},
        {"Tf", {"Nn", ovunque, "Font"}},
        {"TL", {"n"}},
        {"Tc", {"n"}},
        {"Tw", {"n"}},
        {"Tz", {"n"}},
        {"Tr", {"n"}},
        {"Tm", {"nnnnnn", testo}},
        {"Td", {"nn", testo}},
        {"T*", {"", testo}},
        {"Tj", {"s", testo}},
    };
    return tavola;
}

// Digits, at most three decimals of which the last is not 0, and never "-0".
bool FormaBreve(std::string_view numero)
{
    if (numero == "-0") return false;
    if (numero.starts_with('-')) numero.remove_prefix(1);
    const auto punto = std::min(numero.find('.'), numero.size());
    const auto intero = numero.substr(0, punto);
    const auto decimali = numero.substr(punto);
    if (intero.empty() || (intero.size() > 1 && intero.front() == '0')) return false;
    if (intero.find_first_not_of("0123456789") != intero.npos) return false;
    return decimali.empty() ||
           (decimali.size() > 1 && decimali.size() <= 4 && decimali.back() != '0');
}

bool DelDispositivo(const std::string& spazio)
{
    return spazio == "Pattern" || spazio == "DeviceRGB" || spazio == "DeviceGray" ||
           spazio == "DeviceCMYK";
}

char Sigla(const ValorePdf& operando)
{
    switch (operando.Tipo) {
    case TipoPdf::Numero:
        return 'n';
    case TipoPdf::Nome:
        return 'N';
    case TipoPdf::Stringa:
        return 's';
    case TipoPdf::Elenco:
        return std::all_of(operando.Elementi.begin(), operando.Elementi.end(),
                           [](const ValorePdf& v) { return v.Tipo == TipoPdf::Numero; })
                   ? 'a'
                   : '?';
    default:
        return '?';
    }
}

class Controllo
{
public:
    Controllo(std::string_view contenuto, const std::string& dove,
              std::vector<std::string>& difetti)
        : m_lettore(contenuto, false, dove, difetti)
        , m_dove(dove)
        , m_difetti(difetti)
    {
    }

    std::vector<NomeUsato> Tutto()
    {
        for (;;) {
            ValorePdf valore = m_lettore.Prossimo();
            if (valore.Tipo == TipoPdf::Fine) break;
            if (valore.Tipo != TipoPdf::Parola) {
                Numeri(valore);
                m_operandi.push_back(std::move(valore));
                continue;
            }
            Esegui(valore.Testo);
            m_operandi.clear();
        }
        // After a fault of syntax the rest is unread: what it would have closed is no fault.
        if (!m_lettore.Rotto()) Fine();
        return m_usati;
    }

private:
    void Difetto(const std::string& che) { m_difetti.push_back(m_dove + ": " + che); }

    void Numeri(const ValorePdf& valore)
    {
        if (valore.Tipo == TipoPdf::Numero && !FormaBreve(valore.Testo))
            Difetto("numero " + valore.Testo + " non in forma breve");
        for (const ValorePdf& elemento : valore.Elementi) Numeri(elemento);
    }

    void Esegui(const std::string& nome)
    {
        const auto trovato = Operatori().find(nome);
        if (trovato == Operatori().end()) {
            Difetto("operatore sconosciuto \"" + nome + "\"");
            return;
        }
        const Operatore& operatore = trovato->second;
        if (!OperandiGiusti(operatore.Operandi)) Difetto("operandi sbagliati per " + nome);
        if ((operatore.Dove == Luogo::SoloTesto && !m_testo) ||
            (operatore.Dove == Luogo::FuoriTesto && m_testo))
            Difetto(nome + (m_testo ? " dentro" : " fuori da") + " BT ... ET");
        Conta(nome);
        if (!operatore.Categoria.empty()) Usa(operatore.Categoria);
    }

    bool OperandiGiusti(std::string_view attesi) const
    {
        std::string dati;
        for (const ValorePdf& operando : m_operandi) dati += Sigla(operando);
        if (!attesi.starts_with('*')) return dati == attesi;
        return dati.ends_with(attesi.substr(1)) &&
               dati.find_first_not_of('n') == dati.size() - (attesi.size() - 1);
    }

    void Conta(const std::string& nome)
    {
        if (nome == "BT") m_testo = true;
        if (nome == "ET") m_testo = false;
        if (nome == "q") ++m_salvati;
        if (nome == "Q" && --m_salvati < 0) {
            Difetto("Q senza q");
            m_salvati = 0;
        }
    }

    void Usa(std::string_view categoria)
    {
        for (const ValorePdf& operando : m_operandi)
            if (operando.Tipo == TipoPdf::Nome &&
                !(categoria == "ColorSpace" && DelDispositivo(operando.Testo)))
                m_usati.push_back({std::string(categoria), operando.Testo});
    }

    void Fine()
    {
        if (!m_operandi.empty()) Difetto("operandi senza operatore alla fine");
        if (m_testo) Difetto("BT senza ET");
        if (m_salvati > 0) Difetto("q senza Q: " + std::to_string(m_salvati));
    }

    LettorePdf m_lettore;
    const std::string& m_dove;
    std::vector<std::string>& m_difetti;
    std::vector<ValorePdf> m_operandi;
    std::vector<NomeUsato> m_usati;
    bool m_testo = false;
    int m_salvati = 0;
};

} // namespace

std::vector<NomeUsato> ControllaContenuto(std::string_view contenuto, const std::string& dove,
                                          std::vector<std::string>& difetti)
{
    return Controllo(contenuto, dove, difetti).Tutto();
}

} // namespace aiuti
