// Child processes, files of other users and code that runs without root's rights.
#pragma once

#include <filesystem>
#include <functional>

#include <sys/types.h>

namespace aiuti {

// A user (and group) without rights or files of its own.
inline constexpr uid_t Nessuno = 65534;

bool SonoRadice();

// Ends a child at once with the meaning "this system does not allow it": no failure, no success.
[[noreturn]] void EsciImpossibile();

// Results of a child that has ended.
inline constexpr int Riuscito = 0;     // all its expectations held
inline constexpr int Fallito = 1;      // one did not, or an exception got out
inline constexpr int Impossibile = 77; // EsciImpossibile()
inline constexpr int DaSegnale = 1000; // plus the number of the signal that ended it

// A process that runs lavoro and ends; its failed expectations are printed as they happen. Killed
// and reaped at the end when nobody has waited for it.
class Figlio
{
public:
    explicit Figlio(const std::function<void()>& lavoro);
    ~Figlio();
    Figlio(const Figlio&) = delete;
    Figlio& operator=(const Figlio&) = delete;

    pid_t Numero() const { return m_numero; }

    // Waits for its end; one of the results above, or its own exit code.
    int Aspetta();

    // True, with the result, when it has ended already.
    bool Finito(int& esito);

private:
    pid_t m_numero;
};

// Runs lavoro in a child process and waits for the result.
int InUnFiglio(const std::function<void()>& lavoro);

// The same without root's rights: as the user Nessuno, or as the ordinary user one already is. A
// failure when the rights could not be given up.
int ComeNessuno(const std::function<void()>& lavoro);

// Makes a user the owner of a file, folder or link (the link itself). Needs root.
void Affida(const std::filesystem::path& percorso, uid_t utente);

// The owner of an entry, a link's own.
uid_t Padrone(const std::filesystem::path& percorso);

} // namespace aiuti
