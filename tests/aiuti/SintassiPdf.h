// PDF syntax as our writer makes it: the values of objects and the words of content streams.
//
// Stricter than ISO 32000-1, 7.2 and 7.3, where the writer promises more: blanks are the space, CR
// and CR LF; strings are written in parentheses and escape exactly "\", "(" and ")", in objects "r"
// for CR, too; names escape exactly what is no regular character, and "#"; there are no comments,
// and hexadecimal strings, of upper-case digits in pairs, in objects alone.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace aiuti {

enum class TipoPdf
{
    Numero,
    Nome,
    Stringa,
    Elenco,
    Dizionario,
    Riferimento,
    Parola, // true, false, null; in a content stream an operator
    Fine,
};

struct ValorePdf
{
    TipoPdf Tipo = TipoPdf::Fine;
    std::string Testo; // as written; a name without "/", a string without escapes
    int Numero = 0;    // the object that a reference names
    std::vector<ValorePdf> Elementi;
    std::map<std::string, std::size_t, std::less<>> Chiavi; // of a dictionary: which element

    // The value under a key of this dictionary; nullptr when there is none.
    const ValorePdf* Voce(std::string_view chiave) const;
    bool E(TipoPdf tipo, std::string_view testo) const { return Tipo == tipo && Testo == testo; }
};

// The number that a text of digits stands for; -1 for any other text and above 999999999.
int NumeroIntero(std::string_view testo);

// Reads one value after the other. A fault is added to difetti as "dove: what, byte n" and ends the
// reading: from then on there is nothing but Fine.
class LettorePdf
{
public:
    // The text and the list must outlive the reader. Only objects hold references: in a content
    // stream "1 0 R" are two numbers and a word.
    LettorePdf(std::string_view testo, bool conRiferimenti, std::string dove,
               std::vector<std::string>& difetti);

    ValorePdf Prossimo();
    void SaltaBianchi();
    std::size_t Posizione() const { return m_posizione; }
    bool Rotto() const { return m_rotto; }

private:
    ValorePdf Valore(int profondita);
    ValorePdf Stringa();
    ValorePdf Esadecimale();
    ValorePdf Nome();
    ValorePdf Elenco(int profondita);
    ValorePdf Dizionario(int profondita);
    ValorePdf ParolaONumero();
    bool FineRiferimento(ValorePdf& numero);
    bool DentroVale(const ValorePdf& valore);
    bool Comincia(std::string_view pezzo) const;
    bool Prendi(std::string_view pezzo);
    ValorePdf Difetto(const std::string& che);

    std::string_view m_testo;
    bool m_conRiferimenti;
    std::string m_dove;
    std::vector<std::string>& m_difetti;
    std::size_t m_posizione = 0;
    bool m_rotto = false;
};

} // namespace aiuti
