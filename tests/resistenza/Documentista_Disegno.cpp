// Colours, paths, pictures, patterns and axes at random.

#include "Documentista.h"

#include "Parole.h"

#include <algorithm>
#include <stdexcept>

namespace resistenza {

namespace {

// With these filters one reader never ends on a palette of these pictures (see FilterDecode).
constexpr int FiltriDifficili = 12;

bool Difficile(const std::string& figura)
{
    const auto nome = std::filesystem::path(figura).stem().string();
    return nome.starts_with("1bit") || nome == "4bit_tavolozza_corta" || nome == "fuori_tavolozza";
}

std::string Esadecimale(Caso& caso)
{
    constexpr std::string_view cifre = "0123456789ABCDEFabcdef";
    std::string colore = "#";
    for (int i = 0; i < 6; ++i) colore.push_back(cifre[static_cast<std::size_t>(caso.Bit() % 22)]);
    return colore;
}

} // namespace

// A colour that is no pattern.
std::string Documentista::Tinta()
{
    static const std::vector<std::string> nomi = {"Black",   "Gray",    "Silver", "White",
                                                  "Fuchsia", "MAGENTA", "red",    "Yellow",
                                                  "green",   "Aqua",    "cyan",   "Blue"};
    const std::string coda = m_caso.Una(4) ? TestoOstile(m_caso, 6) : ""; // no part of the colour
    switch (m_caso.Intero(0, 4)) {
    case 0:
        return m_caso.Una(9) ? "#" + coda : Esadecimale(m_caso) + coda;
    case 1:
        return "%" + std::to_string(m_caso.Intero(0, 100)) + coda;
    case 2:
        return CHIAMA(ToColor, F(0, 255), F(0, 255), F(0, 255));
    case 3:
        return CHIAMA(ToColor, F(-10, 110), F(0, 100), F(0, 100), F(0, 100));
    default:
        return m_caso.Fra(nomi);
    }
}

std::string Documentista::Colore()
{
    return m_colorate.empty() || !m_caso.Una(6) ? Tinta() : m_caso.Fra(m_colorate);
}

void Documentista::Colora()
{
    const bool trama = !m_daColorare.empty() && m_caso.Una(6);
    const std::string colore = trama ? m_caso.Fra(m_daColorare) : Colore();
    // A pattern's colour that is a pattern in its turn counts for nothing.
    const std::string inchiostro =
        trama ? Tinta() : (m_caso.Una(4) ? TestoOstile(m_caso, 6) : std::string());
    if (m_caso.Una(2)) CHIAMA(SetColorFill, colore, inchiostro);
    else CHIAMA(SetColorLine, colore, inchiostro);
}

void Documentista::Sfuma(const Zona& zona)
{
    std::vector<std::string> tinte;
    const int quante = m_caso.Intero(1, 3);
    for (int i = 0; i < quante; ++i) tinte.push_back(Tinta());
    const bool prima = m_caso.Una(2);
    const bool dopo = m_caso.Una(2);
    const float x = U(zona.X);
    const float y = U(zona.Y);
    if (m_caso.Una(2)) {
        CHIAMA(SetLinearFill, tinte, x, y, U(zona.X + zona.Larga), U(zona.Y + zona.Alta), prima,
               dopo);
    } else {
        CHIAMA(SetRadialFill, tinte, x, y, U(m_caso.Reale(0, 10)), U(zona.X + zona.Larga / 2), y,
               U(m_caso.Reale(11, 90)), prima, dopo);
    }
    CHIAMA(DrawRect, x, y, U(zona.Larga), U(zona.Alta), Pittura(), 0);
    CHIAMA(SetColorFill, Tinta());
}

// ---- Paths -------------------------------------------------------------------------------------

void Documentista::Linea(const Zona& zona)
{
    const int capo = m_caso.Intero(-1, 2);
    const int angolo = m_caso.Intero(-1, 2);
    const float acceso = m_caso.Una(2) ? 0 : U(m_caso.Reale(1, 9));
    const float spento = m_caso.Una(2) ? 0 : U(m_caso.Reale(1, 9));
    const float larga = m_caso.Una(4) ? -1 : U(m_caso.Reale(0, 5));
    CHIAMA(SetLineStyle, larga, capo, angolo, F(0, 12), acceso, spento);
    CHIAMA(DrawLine, U(zona.X), U(zona.Y), U(zona.X + zona.Larga), U(zona.Y + zona.Alta));
    if (CHIAMA(GetX) != U(zona.X) && std::abs(CHIAMA(GetX) - U(zona.X)) > U(1)) {
        throw std::runtime_error("il punto corrente non è l'inizio della linea");
    }
}

// Pieces that go on with each other: only the last one paints.
void Documentista::Spezzata(const Zona& zona)
{
    const auto x = [&] { return U(zona.X + m_caso.Reale(0, zona.Larga)); };
    const auto y = [&] { return U(zona.Y + m_caso.Reale(0, zona.Alta)); };
    CHIAMA(MoveTo, x(), y());
    const int tratti = m_caso.Intero(1, 6);
    for (int i = 0; i < tratti; ++i) {
        switch (m_caso.Intero(0, 3)) {
        case 0:
            CHIAMA(DrawCurveA, x(), y(), x(), y(), x(), y(), 0);
            break;
        case 1:
            CHIAMA(DrawCurveB, x(), y(), x(), y(), 0);
            break;
        case 2:
            CHIAMA(DrawCurveC, x(), y(), x(), y(), m_caso.Una(4) ? 2 : 0);
            break;
        default:
            CHIAMA(DrawLineTo, x(), y(), 0);
        }
    }
    CHIAMA(DrawLineTo, x(), y(), Pittura());
}

void Documentista::Curve(const Zona& zona)
{
    const float x = U(zona.X + zona.Larga / 2);
    const float y = U(zona.Y + zona.Alta / 2);
    const float raggio = U(m_caso.Reale(0, zona.Alta / 2));
    switch (m_caso.Intero(0, 2)) {
    case 0:
        return CHIAMA(DrawCircle, x, y, raggio, Pittura());
    case 1:
        return CHIAMA(DrawEllipse, x, y, U(m_caso.Reale(0, zona.Larga / 2)), raggio, Pittura());
    default:
        return CHIAMA(DrawArc, x, y, raggio, F(-360, 360), F(-360, 720), Pittura());
    }
}

void Documentista::Figure(const Zona& zona)
{
    const float raggio = m_caso.Una(2) ? 0 : U(m_caso.Reale(0, zona.Alta));
    CHIAMA(DrawRect, U(zona.X), U(zona.Y), U(zona.Larga), U(zona.Alta), Pittura(), raggio);
}

void Documentista::Immagine(const Zona& zona)
{
    std::string figura = m_caso.Fra(m_figure);
    while (m_filtri == FiltriDifficili && Difficile(figura)) figura = m_caso.Fra(m_figure);
    const std::string chiave = m_caso.Una(3) ? "altra volta" : "";
    Disegna(figura, {zona.X, zona.Y, zona.Larga * m_caso.Reale(0.1, 1), zona.Alta}, chiave);
}

// A key names one picture among those of bytes, so that each has its own.
void Documentista::Disegna(const std::string& figura, const Zona& zona, const std::string& chiave)
{
    const float larga = U(zona.Larga);
    const float alta = U(zona.Alta);
    if (!Nuova(2)) return CHIAMA(DrawImage, figura, U(zona.X), U(zona.Y), larga, alta, chiave);
    CHIAMA(DrawImageData, ByteDi(figura), U(zona.X), U(zona.Y), larga, alta,
           chiave.empty() ? "" : figura);
}

// ---- Axes and reusable drawings ----------------------------------------------------------------

void Documentista::Spazio(const Zona& zona)
{
    const float larga = F(0.5, 1);
    const float alta = m_caso.Una(2) ? larga : F(0.5, 1.5);
    CHIAMA(BeginGraphicSpace, U(zona.X), U(zona.Y), larga, alta);
    Figure({0, 0, zona.Larga, zona.Alta});
    CHIAMA(BeginGraphicSpace, U(4), U(4));
    const auto attese = m_attese.size();
    Riga({0, 0, zona.Larga - 10, zona.Alta});
    // Letters much higher than wide stand too far apart for a reader.
    if (larga != alta) m_attese.resize(attese);
    CHIAMA(EndGraphicSpace);
    CHIAMA(EndGraphicSpace);
}

void Documentista::Assi(const Zona& zona)
{
    CHIAMA(BeginGraphicSpace, U(zona.X + zona.Larga / 2), U(zona.Y + zona.Alta / 2));
    CHIAMA(MakeAxisTranslation, U(m_caso.Reale(-5, 5)), U(m_caso.Reale(-5, 5)));
    CHIAMA(MakeAxisRotation, F(-360, 360));
    CHIAMA(MakeAxisScaling, F(0.6, 1.2), F(0.6, 1.2));
    CHIAMA(MakeAxisSkewing, F(-20, 20), F(-20, 20));
    Figure({-8, -8, 16, 16});
    CHIAMA(DrawText, 0, 0, ParolaSemplice(m_caso));
    CHIAMA(EndGraphicSpace);
}

void Documentista::Gioca(const Zona& zona)
{
    CHIAMA(BeginGraphicSpace, U(zona.Larga / 20), U(zona.Alta / 20));
    CHIAMA(PlayObject, m_caso.Fra(m_oggetti));
    CHIAMA(EndGraphicSpace);
}

// The cell need not begin at the origin, nor its repetitions touch.
void Documentista::Piastrella(int numero)
{
    const bool colorata = m_caso.Una(2);
    const std::string nome = Nome(m_caso, numero);
    const double x = m_caso.Reale(0, 10);
    const double y = m_caso.Reale(0, 10);
    const double larga = m_caso.Reale(6, 30);
    const double alta = m_caso.Reale(6, 30);
    CHIAMA(BeginTiling, nome, U(x), U(y), U(x + larga), U(y + alta), U(larga + m_caso.Reale(0, 5)),
           U(alta + m_caso.Reale(0, 5)), colorata ? 1 : 2);
    if (colorata) CHIAMA(SetColorFill, Tinta());
    CHIAMA(DrawRect, 0, 0, U(larga / 2), U(alta / 2), 4);
    if (colorata) CHIAMA(SetColorLine, Tinta());
    CHIAMA(DrawCircle, U(larga / 2), U(alta / 2), U(std::min(larga, alta) / 3), 1);
    CHIAMA(EndTiling);
    (colorata ? m_colorate : m_daColorare).push_back(nome);
}

} // namespace resistenza
