// Reads a whole file of ours: header, objects, cross-references, trailer. Next: DocumentoPdf.cpp.
#include "StrutturaPdf.h"

#include "DocumentoPdf.h"
#include "SintassiPdf.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <string_view>

namespace aiuti {

namespace {

constexpr std::string_view FineRiga = "\r\n";
constexpr std::size_t BytePerVoce = 20;

// Reads the file from its end, as readers do: where the table is, where the objects are, the
// objects.
class Disposizione
{
public:
    Disposizione(std::string_view byte, PdfLetto& pdf)
        : m_byte(byte)
        , m_pdf(pdf)
    {
    }

    std::vector<ValorePdf> Tutto()
    {
        Testata();
        if (Fondo() && Tavola()) {
            Coda();
            Oggetti();
        }
        return m_valori;
    }

private:
    void Difetto(const std::string& che) { m_pdf.Difetti.push_back(che); }

    void Difetto(std::size_t n, const std::string& che)
    {
        Difetto("oggetto " + std::to_string(n) + ": " + che);
    }

    // The line at a place, without its CR LF, and the place moved behind it; nothing without one.
    std::optional<std::string_view> Riga(std::size_t& posizione) const
    {
        const auto fine = m_byte.find(FineRiga, posizione);
        if (fine == m_byte.npos) return std::nullopt;
        const auto riga = m_byte.substr(posizione, fine - posizione);
        posizione = fine + FineRiga.size();
        return riga;
    }

    void Testata()
    {
        constexpr std::string_view segno = "%PDF-1.";
        const auto prima = Riga(m_inizioCorpo);
        if (prima && prima->starts_with(segno) && NumeroIntero(prima->substr(segno.size())) >= 0)
            m_pdf.Versione = prima->substr(segno.size() - 2);
        else Difetto("testata sbagliata");
        const auto commento = Riga(m_inizioCorpo);
        if (!commento || !commento->starts_with("% ")) Difetto("manca la riga di commento");
    }

    // "startxref", CR, the place of the table, CR LF, "%%EOF", CR, CR LF.
    bool Fondo()
    {
        constexpr std::string_view segno = "startxref\r", fine = "\r\n%%EOF\r\r\n";
        if (!m_byte.ends_with(fine)) {
            Difetto("la fine non è \"%%EOF\" CR CR LF");
            return false;
        }
        m_fondo = m_byte.rfind(segno);
        const auto numero =
            m_fondo == m_byte.npos
                ? std::string_view()
                : m_byte.substr(m_fondo + segno.size(),
                                m_byte.size() - fine.size() - m_fondo - segno.size());
        const int tavola = NumeroIntero(numero);
        if (tavola < 0 || static_cast<std::size_t>(tavola) >= m_fondo ||
            !m_byte.substr(static_cast<std::size_t>(tavola)).starts_with("xref\r\n0 ")) {
            Difetto("startxref non indica la tavola: " + std::string(numero));
            return false;
        }
        m_tavola = static_cast<std::size_t>(tavola);
        return true;
    }

    bool Tavola()
    {
        m_dopoTavola = m_tavola;
        Riga(m_dopoTavola);
        const auto conto = Riga(m_dopoTavola);
        const int voci = conto ? NumeroIntero(conto->substr(2)) : -1;
        const std::size_t resto = m_fondo - std::min(m_fondo, m_dopoTavola);
        if (voci < 2 || static_cast<std::size_t>(voci) > resto / BytePerVoce) {
            Difetto("conto delle voci della tavola sbagliato");
            return false;
        }
        for (int n = 0; n < voci; ++n, m_dopoTavola += BytePerVoce)
            if (!Voce(static_cast<std::size_t>(n), m_byte.substr(m_dopoTavola, BytePerVoce)))
                return false;
        return true;
    }

    bool Voce(std::size_t n, std::string_view voce)
    {
        const int posizione = NumeroIntero(voce.substr(1, 9));
        const bool giusta = voce[0] == '0' && posizione >= 0 &&
                            voce.substr(10) == (n == 0 ? " 65535 f\r\n" : " 00000 n\r\n");
        if (!giusta || (n == 0 && posizione != 0)) {
            Difetto("voce " + std::to_string(n) + " della tavola sbagliata");
            return false;
        }
        m_posizioni.push_back(static_cast<std::size_t>(posizione));
        return true;
    }

    // From the table to "startxref": the trailer and nothing else.
    void Coda()
    {
        constexpr std::string_view segno = "trailer\r\n";
        const auto coda = m_byte.substr(m_dopoTavola, m_fondo - m_dopoTavola);
        if (!coda.starts_with(segno) || !coda.ends_with(FineRiga)) {
            Difetto("dopo la tavola non c'è la coda");
            return;
        }
        LettorePdf lettore(coda.substr(segno.size()), true, "coda", m_pdf.Difetti);
        const ValorePdf valore = lettore.Prossimo();
        if (lettore.Prossimo().Tipo != TipoPdf::Fine) Difetto("coda: c'è altro dopo il dizionario");
        const ValorePdf* ampiezza = valore.Voce("Size");
        if (!ampiezza || !ampiezza->E(TipoPdf::Numero, std::to_string(m_posizioni.size() - 1)))
            Difetto("coda: /Size non è il numero dell'ultimo oggetto");
        const ValorePdf* informazioni = valore.Voce("Info");
        if (!informazioni || !informazioni->E(TipoPdf::Riferimento, "1"))
            Difetto("coda: /Info non è l'oggetto 1");
        const ValorePdf* radice = valore.Voce("Root");
        if (!radice || !radice->E(TipoPdf::Riferimento, "2"))
            Difetto("coda: /Root non è l'oggetto 2");
    }

    // Each object reaches to the place of the next one in the file: whatever does not belong to an
    // object shows as a fault of the one before it.
    void Oggetti()
    {
        const std::size_t ultimo = m_posizioni.size() - 1;
        m_pdf.Oggetti.resize(ultimo);
        m_pdf.Dati.resize(ultimo);
        m_valori.resize(ultimo + 1);
        std::vector<std::size_t> ordine(ultimo);
        std::iota(ordine.begin(), ordine.end(), 1U);
        std::sort(ordine.begin(), ordine.end(),
                  [this](std::size_t a, std::size_t b) { return m_posizioni[a] < m_posizioni[b]; });
        if (m_posizioni[ordine.front()] != m_inizioCorpo)
            Difetto("il primo oggetto non segue la testata");
        for (std::size_t i = 0; i < ultimo; ++i) {
            const std::size_t inizio = m_posizioni[ordine[i]];
            const std::size_t fine = i + 1 < ultimo ? m_posizioni[ordine[i + 1]] : m_tavola;
            if (fine < inizio || fine > m_tavola) Difetto(ordine[i], "fuori dal corpo del file");
            else Oggetto(ordine[i], m_byte.substr(inizio, fine - inizio));
        }
    }

    void Oggetto(std::size_t n, std::string_view testo)
    {
        const std::string inizio = std::to_string(n) + " 0 obj\r\n";
        constexpr std::string_view fine = "endobj\r\n";
        if (!testo.starts_with(inizio)) Difetto(n, "la tavola non ne indica il posto");
        else if (testo.size() < inizio.size() + fine.size() || !testo.ends_with(fine))
            Difetto(n, "non finisce con \"endobj\" dove comincia il prossimo");
        else Corpo(n, testo.substr(inizio.size(), testo.size() - inizio.size() - fine.size()));
    }

    void Corpo(std::size_t n, std::string_view corpo)
    {
        LettorePdf lettore(corpo, true, "oggetto " + std::to_string(n), m_pdf.Difetti);
        m_valori[n] = lettore.Prossimo();
        const auto dopoValore = lettore.Posizione();
        lettore.SaltaBianchi();
        if (lettore.Rotto()) return;
        const auto prima = corpo.substr(0, lettore.Posizione());
        const auto dopo = corpo.substr(lettore.Posizione());
        if (m_valori[n].Tipo == TipoPdf::Fine) Difetto(n, "è vuoto");
        if (prima.substr(dopoValore) != FineRiga) Difetto(n, "il valore non finisce con CR LF");
        m_pdf.Oggetti[n - 1] = prima.substr(0, dopoValore);
        if (!dopo.empty()) Flusso(n, dopo);
    }

    void Flusso(std::size_t n, std::string_view testo)
    {
        constexpr std::string_view inizio = "stream\r\n", fine = "endstream\r\n";
        if (!testo.starts_with(inizio)) Difetto(n, "c'è altro dopo il valore");
        else if (testo.size() < inizio.size() + fine.size() || !testo.ends_with(fine))
            Difetto(n, "flusso senza \"endstream\" alla fine");
        else
            m_pdf.Dati[n - 1] =
                testo.substr(inizio.size(), testo.size() - inizio.size() - fine.size());
    }

    std::string_view m_byte;
    PdfLetto& m_pdf;
    std::size_t m_inizioCorpo = 0, m_tavola = 0, m_dopoTavola = 0, m_fondo = 0;
    std::vector<std::size_t> m_posizioni; // of object n at n; of nothing at 0
    std::vector<ValorePdf> m_valori;
};

} // namespace

const std::string& PdfLetto::Oggetto(int n) const
{
    return Oggetti.at(static_cast<std::size_t>(n) - 1);
}

const std::string& PdfLetto::Flusso(int n) const
{
    const auto& dati = Dati.at(static_cast<std::size_t>(n) - 1);
    if (!dati) throw std::out_of_range("oggetto senza flusso: " + std::to_string(n));
    return *dati;
}

const std::string& PdfLetto::Contenuto(int pagina) const
{
    return Flusso(NumeriContenuto.at(static_cast<std::size_t>(pagina) - 1));
}

PdfLetto LeggiPdf(const std::string& byte)
{
    PdfLetto pdf;
    const std::vector<ValorePdf> valori = Disposizione(byte, pdf).Tutto();
    if (!valori.empty()) ControllaDocumento(valori, pdf);
    return pdf;
}

} // namespace aiuti
