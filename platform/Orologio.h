// The time of day, and a clock for durations. Dates are in Calendario.h.
#pragma once

// Seconds since local midnight, 0 to 86400 exclusive, with the fraction that the system timer
// gives (some milliseconds: this clock is read before every card drawn, so it is the cheap one).
double SecondiDaMezzanotte();

// Seconds of a clock that is never set back, for measuring durations; its zero means nothing.
double SecondiTrascorsi();
