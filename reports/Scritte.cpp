// The name of the program on its screens; see Scritte.h.

#include "Scritte.h"

namespace scritte {

void StampaNome(Superficie& superficie, float x, float y)
{
    constexpr std::int32_t punti = 20;
    constexpr float ombra = 20;
    superficie.ImpostaFont(ArialBlack, punti, Vero);
    superficie.ImpostaPosizione(x + ombra, y + ombra);
    superficie.ImpostaColoreTesto(Grigio);
    superficie.Stampa(Insegna);
    superficie.ImpostaPosizione(x, y);
    superficie.ImpostaColoreTesto(Rosso);
    superficie.Stampa(Insegna);
    superficie.ImpostaColoreTesto(Nero);
}

} // namespace scritte
