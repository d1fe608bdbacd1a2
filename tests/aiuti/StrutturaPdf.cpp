// Reads a whole file of ours: header, objects, cross-references, trailer. Next: DocumentoPdf.cpp.
#include "StrutturaPdf.h"

#include "DocumentoPdf.h"
#include "RimandiPdf.h"
#include "SintassiPdf.h"

#include <algorithm>
#include <map>
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
        if (!Fondo()) return m_valori;
        const bool tavola = m_byte.substr(m_tavola).starts_with("xref\r\n0 ");
        if (tavola ? Tavola() : Rimandi()) {
            if (tavola) Coda();
            Oggetti();
            Impacchettati();
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
        m_conforme = Binario(m_inizioCorpo);
        if (m_conforme) Riga(m_inizioCorpo);
        const auto commento = Riga(m_inizioCorpo);
        if (!commento || !commento->starts_with("% ")) Difetto("manca la riga di commento");
    }

    // Whether a line says that the file is not text (ISO 32000-1, 7.5.2): "%" and four bytes above
    // 127. Only a conforming document has one.
    bool Binario(std::size_t posizione) const
    {
        const auto riga = Riga(posizione);
        return riga && riga->size() == 5 && riga->starts_with('%') &&
               std::all_of(riga->begin() + 1, riga->end(),
                           [](char c) { return static_cast<unsigned char>(c) > 127; });
    }

    // "startxref", CR, the place of the table, CR LF, "%%EOF", CR, CR LF; in a conforming document
    // without these two CR.
    bool Fondo()
    {
        const std::string_view segno = m_conforme ? "startxref\r\n" : "startxref\r";
        const std::string_view fine = m_conforme ? "\r\n%%EOF\r\n" : "\r\n%%EOF\r\r\n";
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
        const auto qui = static_cast<std::size_t>(std::max(tavola, 0));
        if (tavola < 0 || qui >= m_fondo ||
            (!m_conforme && !m_byte.substr(qui).starts_with("xref\r\n0 "))) {
            Difetto("startxref non indica la tavola: " + std::string(numero));
            return false;
        }
        m_tavola = qui;
        return true;
    }

    bool Tavola()
    {
        m_dopoTavola = m_tavola;
        m_fineCorpo = m_tavola;
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

    // Only a conforming document has free entries besides the first.
    bool Voce(std::size_t n, std::string_view voce)
    {
        const int posizione = NumeroIntero(voce.substr(1, 9));
        const bool libera = n == 0 || (m_conforme && posizione == 0);
        const bool giusta = voce[0] == '0' && posizione >= 0 &&
                            voce.substr(10) == (libera ? " 65535 f\r\n" : " 00000 n\r\n");
        if (!giusta || (n == 0 && posizione != 0)) {
            Difetto("voce " + std::to_string(n) + " della tavola sbagliata");
            return false;
        }
        const auto genere = libera ? PostoPdf::Genere::Libero : PostoPdf::Genere::PerConto;
        m_posti.push_back({genere, static_cast<std::size_t>(posizione), 0});
        return true;
    }

    // In place of the table: one object more, whose dictionary is the trailer, too.
    bool Rimandi()
    {
        constexpr std::string_view segno = "stream\r\n";
        std::size_t dopo = m_tavola;
        Riga(dopo);
        const auto testo = m_byte.substr(dopo, m_fondo - dopo);
        LettorePdf lettore(testo, true, "rimandi", m_pdf.Difetti);
        const ValorePdf dizionario = lettore.Prossimo();
        lettore.SaltaBianchi();
        const auto resto = testo.substr(lettore.Posizione());
        const auto righe = resto.starts_with(segno)
                               ? DatiDelFlusso(dizionario, resto.substr(segno.size()))
                               : std::nullopt;
        if (righe) m_posti = PostiDegliOggetti(dizionario, *righe);
        const ValorePdf* tipo = dizionario.Voce("Type");
        if (m_posti.empty() || !tipo || !tipo->E(TipoPdf::Nome, "XRef") ||
            m_posti.back().Tipo != PostoPdf::Genere::PerConto || m_posti.back().Dove != m_tavola) {
            Difetto("startxref non indica né una tavola né un flusso di rimandi");
            return false;
        }
        VociDellaCoda(dizionario);
        m_fineCorpo = m_fondo;
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
        VociDellaCoda(valore);
    }

    void VociDellaCoda(const ValorePdf& valore)
    {
        const ValorePdf* ampiezza = valore.Voce("Size");
        const std::size_t giusta = m_posti.size() - (m_conforme ? 0 : 1);
        if (!ampiezza || !ampiezza->E(TipoPdf::Numero, std::to_string(giusta)))
            Difetto(m_conforme ? "coda: /Size non è uno più dell'ultimo oggetto"
                               : "coda: /Size non è il numero dell'ultimo oggetto");
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
        const std::size_t ultimo = m_posti.size() - 1;
        m_pdf.Oggetti.resize(ultimo);
        m_pdf.Dati.resize(ultimo);
        m_valori.resize(ultimo + 1);
        std::vector<std::size_t> ordine;
        for (std::size_t n = 1; n <= ultimo; ++n) {
            if (m_posti[n].Tipo == PostoPdf::Genere::PerConto) ordine.push_back(n);
            if (m_posti[n].Tipo == PostoPdf::Genere::Libero)
                m_pdf.Liberi.insert(static_cast<int>(n));
        }
        std::sort(ordine.begin(), ordine.end(), [this](std::size_t a, std::size_t b) {
            return m_posti[a].Dove < m_posti[b].Dove;
        });
        if (ordine.empty() || m_posti[ordine.front()].Dove != m_inizioCorpo)
            Difetto("il primo oggetto non segue la testata");
        for (std::size_t i = 0; i < ordine.size(); ++i) {
            const std::size_t inizio = m_posti[ordine[i]].Dove;
            const std::size_t fine =
                i + 1 < ordine.size() ? m_posti[ordine[i + 1]].Dove : m_fineCorpo;
            if (fine < inizio || fine > m_fineCorpo) Difetto(ordine[i], "fuori dal corpo del file");
            else Oggetto(ordine[i], m_byte.substr(inizio, fine - inizio));
        }
    }

    // The objects that stand in streams, each where the references say.
    void Impacchettati()
    {
        std::map<std::size_t, std::vector<OggettoImpacchettato>> flussi;
        for (std::size_t n = 1; n < m_posti.size(); ++n) {
            const PostoPdf& posto = m_posti[n];
            if (posto.Tipo != PostoPdf::Genere::InFlusso) continue;
            auto [flusso, nuovo] = flussi.try_emplace(posto.Dove);
            if (nuovo) flusso->second = DelFlusso(posto.Dove);
            const auto& oggetti = flusso->second;
            if (posto.Indice >= oggetti.size() ||
                oggetti[posto.Indice].Numero != static_cast<int>(n))
                Difetto(n, "non è dove dicono i rimandi");
            else Corpo(n, oggetti[posto.Indice].Testo);
            if (m_pdf.Dati[n - 1]) Difetto(n, "un flusso in un flusso");
        }
    }

    std::vector<OggettoImpacchettato> DelFlusso(std::size_t n)
    {
        std::vector<OggettoImpacchettato> oggetti;
        if (n < m_valori.size() && m_pdf.Dati[n - 1]) {
            const std::string testo = *m_pdf.Dati[n - 1] + "endstream\r\nendobj\r\n";
            if (const auto dati = DatiDelFlusso(m_valori[n], testo))
                oggetti = OggettiImpacchettati(m_valori[n], *dati);
        }
        const ValorePdf* tipo = n < m_valori.size() ? m_valori[n].Voce("Type") : nullptr;
        if (oggetti.empty() || !tipo || !tipo->E(TipoPdf::Nome, "ObjStm"))
            Difetto(n, "non è un flusso di oggetti");
        return oggetti;
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
    bool m_conforme = false;
    std::size_t m_inizioCorpo = 0, m_fineCorpo = 0, m_tavola = 0, m_dopoTavola = 0, m_fondo = 0;
    std::vector<PostoPdf> m_posti; // of object n at n; of nothing at 0
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
