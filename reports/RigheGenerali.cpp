// What the general statistics say, row by row; see RigheGenerali.h.
#include "RigheGenerali.h"

#include "FormatiNumero.h"

namespace Stampe {

std::vector<RigaGenerale> RigheGenerali(const NumeroTaglie& chieste, const TotaliReport& totali,
                                        const Separatori& separatori)
{
    const auto quota = [&separatori](const Quoziente& quoziente) {
        return Percento(quoziente, separatori);
    };
    std::vector<RigaGenerale> righe;
    righe.reserve(PrimoEsito + EtichetteEsiti.size());
    righe.push_back({"Colpi totali:", totali.Colpi,
                     DueDecimali(Rapporto(totali.Colpi, chieste.Chieste()), separatori)});
    righe.push_back({"Carte utilizzate:", totali.CarteUsate,
                     quota(Rapporto(totali.CarteUsate, chieste.Chieste(), modCarte::CarteTaglia))});
    for (std::size_t posto = 0; posto < EtichetteEsiti.size(); ++posto) {
        const std::int64_t totale =
            modCarte::Conto<std::int64_t>(totali, modCarte::OrdineReport[posto]);
        righe.push_back({EtichetteEsiti[posto], totale, quota(Rapporto(totale, totali.Colpi))});
    }
    return righe;
}

} // namespace Stampe
