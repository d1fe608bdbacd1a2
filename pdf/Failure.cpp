// Raises the writer's own errors, all in the same form.

#include "Failure.h"

#include "clsPDFCreator.h"

#include <utility>

namespace pdf {

void prFail(NumeroErrore number, std::string reason)
{
    throw ErroreRuntime(number, std::move(reason), std::string(clsPDFCreator::ErrorSource));
}

void prInvalidCall(std::string reason)
{
    prFail(NumeroErrore::ChiamataNonValida, std::move(reason));
}

void prOverflow(std::string reason)
{
    prFail(NumeroErrore::Overflow, std::move(reason));
}

void prNotFinite()
{
    prOverflow("un numero non è finito");
}

} // namespace pdf
