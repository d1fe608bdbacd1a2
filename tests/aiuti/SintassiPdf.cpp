// Turns bytes into PDF values, strictly. StrutturaPdf.cpp finds the objects of a file with it.
#include "SintassiPdf.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace aiuti {

namespace {

// Deeper than anything the writer nests; a file of nothing but "[" must not exhaust the stack.
constexpr int MassimaProfondita = 32;

constexpr std::string_view Cifre = "0123456789";

bool Regolare(char c)
{
    return c != '\0' && std::string_view(" \t\f\r\n()<>[]{}/%").find(c) == std::string_view::npos;
}

bool Numerico(std::string_view parola)
{
    if (!parola.empty() && (parola.front() == '-' || parola.front() == '+'))
        parola.remove_prefix(1);
    const auto punti = std::count(parola.begin(), parola.end(), '.');
    const auto cifre = std::count_if(parola.begin(), parola.end(),
                                     [](char c) { return Cifre.find(c) != Cifre.npos; });
    return cifre > 0 && punti <= 1 && static_cast<std::size_t>(cifre + punti) == parola.size();
}

// Escaped is what must be and nothing else, so that equal names are equal bytes.
bool NomeComeSiDeve(std::string_view nome)
{
    constexpr std::string_view cifreEsadecimali = "0123456789ABCDEF";
    constexpr std::size_t massimo = 127;
    std::size_t byte = 0;
    for (std::size_t i = 0; i < nome.size(); ++i, ++byte) {
        if (nome[i] < '!' || nome[i] > '~') return false;
        if (nome[i] != '#') continue;
        if (i + 2 >= nome.size()) return false;
        const auto alta = cifreEsadecimali.find(nome[++i]);
        const auto bassa = cifreEsadecimali.find(nome[++i]);
        if (alta == std::string_view::npos || bassa == std::string_view::npos) return false;
        const char c = static_cast<char>(alta * 16 + bassa);
        if (c == '\0' || (c >= '!' && c <= '~' && c != '#' && Regolare(c))) return false;
    }
    return byte <= massimo;
}

} // namespace

const ValorePdf* ValorePdf::Voce(std::string_view chiave) const
{
    const auto trovata = Chiavi.find(chiave);
    return trovata == Chiavi.end() ? nullptr : &Elementi[trovata->second];
}

int NumeroIntero(std::string_view testo)
{
    if (testo.empty() || testo.size() > 9 || testo.find_first_not_of(Cifre) != testo.npos)
        return -1;
    int numero = -1;
    std::from_chars(testo.data(), testo.data() + testo.size(), numero);
    return numero;
}

LettorePdf::LettorePdf(std::string_view testo, bool conRiferimenti, std::string dove,
                       std::vector<std::string>& difetti)
    : m_testo(testo)
    , m_conRiferimenti(conRiferimenti)
    , m_dove(std::move(dove))
    , m_difetti(difetti)
{
}

ValorePdf LettorePdf::Prossimo()
{
    return Valore(0);
}

void LettorePdf::SaltaBianchi()
{
    while (m_posizione < m_testo.size()) {
        const char c = m_testo[m_posizione];
        const bool solo = c == '\n' && (m_posizione == 0 || m_testo[m_posizione - 1] != '\r');
        if (solo && m_conRiferimenti) { // appearances end their lines so
            Difetto("LF senza CR");
            return;
        }
        if (c != ' ' && c != '\r' && c != '\n') return;
        ++m_posizione;
    }
}

ValorePdf LettorePdf::Valore(int profondita)
{
    SaltaBianchi();
    if (m_posizione == m_testo.size()) return {};
    if (profondita > MassimaProfondita) return Difetto("annidamento troppo profondo");
    if (Comincia("(")) return Stringa();
    if (Comincia("/")) return Nome();
    if (Comincia("[")) return Elenco(profondita);
    if (Comincia("<<")) return Dizionario(profondita);
    if (Comincia("<") && m_conRiferimenti) return Esadecimale();
    if (!Regolare(m_testo[m_posizione]))
        return Difetto(std::string("\"") + m_testo[m_posizione] + "\" fuori posto");
    return ParolaONumero();
}

ValorePdf LettorePdf::Esadecimale()
{
    const auto fine = m_testo.find('>', m_posizione);
    if (fine == m_testo.npos) return Difetto("stringa esadecimale mai chiusa");
    const auto cifre = m_testo.substr(m_posizione + 1, fine - m_posizione - 1);
    if (cifre.size() % 2 != 0 || cifre.find_first_not_of("0123456789ABCDEF") != cifre.npos)
        return Difetto("stringa esadecimale sbagliata");
    m_posizione = fine + 1;
    ValorePdf valore{TipoPdf::Stringa, {}, 0, {}, {}};
    for (std::size_t i = 0; i < cifre.size(); i += 2) {
        valore.Testo += static_cast<char>(std::stoi(std::string(cifre.substr(i, 2)), nullptr, 16));
    }
    return valore;
}

ValorePdf LettorePdf::Stringa()
{
    ValorePdf valore{TipoPdf::Stringa, {}, 0, {}, {}};
    for (++m_posizione; m_posizione < m_testo.size(); ++m_posizione) {
        char c = m_testo[m_posizione];
        if (c == ')') {
            ++m_posizione;
            return valore;
        }
        // Legal when it has its partner, but the writer escapes it: this one slipped through.
        if (c == '(') return Difetto("parentesi aperta in una stringa senza \"\\\"");
        if (c == '\\') {
            if (++m_posizione == m_testo.size()) break;
            c = m_testo[m_posizione];
            if (c == 'r' && m_conRiferimenti) c = '\r';
            else if (c != '\\' && c != '(' && c != ')')
                return Difetto("\"\\\" in una stringa davanti a un carattere qualunque");
        }
        valore.Testo += c;
    }
    return Difetto("stringa mai chiusa");
}

ValorePdf LettorePdf::Nome()
{
    ValorePdf valore{TipoPdf::Nome, {}, 0, {}, {}};
    for (++m_posizione; m_posizione < m_testo.size() && Regolare(m_testo[m_posizione]);
         ++m_posizione)
        valore.Testo += m_testo[m_posizione];
    if (valore.Testo.empty()) return Difetto("nome vuoto");
    if (!NomeComeSiDeve(valore.Testo)) return Difetto("nome scritto male: " + valore.Testo);
    return valore;
}

ValorePdf LettorePdf::Elenco(int profondita)
{
    ValorePdf elenco{TipoPdf::Elenco, {}, 0, {}, {}};
    ++m_posizione;
    while (!Prendi("]")) {
        ValorePdf valore = Valore(profondita + 1);
        if (m_rotto) return {};
        if (valore.Tipo == TipoPdf::Fine) return Difetto("\"[\" senza \"]\"");
        if (!DentroVale(valore)) return Difetto("\"" + valore.Testo + "\" in un elenco");
        elenco.Elementi.push_back(std::move(valore));
    }
    return elenco;
}

ValorePdf LettorePdf::Dizionario(int profondita)
{
    ValorePdf dizionario{TipoPdf::Dizionario, {}, 0, {}, {}};
    m_posizione += 2;
    while (!Prendi(">>")) {
        const ValorePdf chiave = Valore(profondita + 1);
        if (m_rotto) return {};
        if (chiave.Tipo == TipoPdf::Fine) return Difetto("\"<<\" senza \">>\"");
        if (chiave.Tipo != TipoPdf::Nome) return Difetto("chiave che non è un nome");
        if (dizionario.Voce(chiave.Testo)) return Difetto("/" + chiave.Testo + " due volte");
        ValorePdf valore = Valore(profondita + 1);
        if (m_rotto) return {};
        if (!DentroVale(valore)) return Difetto("/" + chiave.Testo + " senza valore");
        dizionario.Chiavi.emplace(chiave.Testo, dizionario.Elementi.size());
        dizionario.Elementi.push_back(std::move(valore));
    }
    return dizionario;
}

ValorePdf LettorePdf::ParolaONumero()
{
    ValorePdf valore{TipoPdf::Parola, {}, 0, {}, {}};
    for (; m_posizione < m_testo.size() && Regolare(m_testo[m_posizione]); ++m_posizione)
        valore.Testo += m_testo[m_posizione];
    if (!Numerico(valore.Testo)) return valore;
    valore.Tipo = TipoPdf::Numero;
    if (m_conRiferimenti && FineRiferimento(valore)) valore.Tipo = TipoPdf::Riferimento;
    return valore;
}

// Takes the rest of "n 0 R" after n, when it stands there. All generations are 0.
bool LettorePdf::FineRiferimento(ValorePdf& numero)
{
    constexpr std::string_view resto = " 0 R";
    const std::size_t dopo = m_posizione + resto.size();
    if (!Comincia(resto) || (dopo < m_testo.size() && Regolare(m_testo[dopo]))) return false;
    m_posizione = dopo;
    numero.Numero = NumeroIntero(numero.Testo);
    return true;
}

bool LettorePdf::DentroVale(const ValorePdf& valore)
{
    if (valore.Tipo == TipoPdf::Fine) return false;
    if (valore.Tipo != TipoPdf::Parola || !m_conRiferimenti) return true;
    return valore.Testo == "true" || valore.Testo == "false" || valore.Testo == "null";
}

bool LettorePdf::Comincia(std::string_view pezzo) const
{
    return m_testo.substr(m_posizione).starts_with(pezzo);
}

bool LettorePdf::Prendi(std::string_view pezzo)
{
    SaltaBianchi();
    if (!Comincia(pezzo)) return false;
    m_posizione += pezzo.size();
    return true;
}

ValorePdf LettorePdf::Difetto(const std::string& che)
{
    if (!m_rotto)
        m_difetti.push_back(m_dove + ": " + che + ", byte " + std::to_string(m_posizione));
    m_rotto = true;
    m_posizione = m_testo.size();
    return {};
}

} // namespace aiuti
