// The one run-time error of the program: every unexpected failure surfaces as this type, up to
// the one place (window or command line) that shows it.
#pragma once

#include <exception>
#include <string>
#include <string_view>

// What a shared library of this project shows to programs outside, and what it does not.
#ifdef __ELF__
#define SCALVINO_PUBBLICO [[gnu::visibility("default")]]
#define SCALVINO_INTERNO [[gnu::visibility("hidden")]]
#else
#define SCALVINO_PUBBLICO
#define SCALVINO_INTERNO
#endif

// The error numbers in use. The value is what the user is shown beside the Italian text.
enum class NumeroErrore : int
{
    ChiamataNonValida = 5,
    Overflow = 6,
    MemoriaEsaurita = 7,
    IndiceFuoriIntervallo = 9,
    DivisionePerZero = 11,
    TipoNonCorrispondente = 13,
    FileNonTrovato = 53,
    ErroreInputOutput = 57,
    DiscoPieno = 61,
    PermessoNegato = 70,
    AccessoAlFile = 75,
    PercorsoNonTrovato = 76,
};

// The Italian text of an error number, UTF-8, without a final full stop.
SCALVINO_PUBBLICO std::string_view TestoErrore(NumeroErrore numero);

// An error with its number, the file or thing it concerns (may be empty) and the reason (may be
// empty). Texts are UTF-8, except that a file name keeps the platform's own bytes.
class SCALVINO_PUBBLICO ErroreRuntime : public std::exception
{
public:
    explicit ErroreRuntime(NumeroErrore numero, std::string motivo = {}, std::string file = {});

    NumeroErrore Numero() const noexcept { return m_numero; }
    std::string_view Testo() const noexcept { return TestoErrore(m_numero); }
    const std::string& File() const noexcept { return m_file; }
    const std::string& Motivo() const noexcept { return m_motivo; }

    // Number and reason for programs in English, which know this class as clsPDFCreator::Error.
    int Number() const noexcept { return static_cast<int>(m_numero); }
    const std::string& Reason() const noexcept { return m_motivo; }

    // One line "file: reason"; the number's text stands in for whichever of the two is empty.
    const char* what() const noexcept override { return m_messaggio.c_str(); }

private:
    NumeroErrore m_numero;
    std::string m_motivo;
    std::string m_file;
    std::string m_messaggio;
};
