// Creation, replacement and removal of the program's own files, safe in a folder that others
// can write to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Removes what stands under percorso so that it can be created anew. Nothing there: no effect.
// Only a regular file or a symbolic link (the link itself, never its target) of this user is
// removed; a folder, a FIFO, a device or anything of another user is an error and stays.
void TogliFile(const std::string& percorso);

// TogliFile for a symbolic link; anything else that stands there stays.
void TogliCollegamento(const std::string& percorso);

// The error that TogliFile would raise about percorso, without touching anything.
void PretendiSostituibile(const std::string& percorso);

// The error that creating percorso anew would raise, as far as it shows without touching anything:
// that of TogliFile, or of a folder that takes no new entry.
void PretendiCreabile(const std::string& percorso);

// An error when percorso is a link that leads to a device, a pipe or a socket, or to whatever this
// process has open (/dev/stdout): for names that come from outside, where such a link is meant and
// not planted, and replacing it would take it away from everybody. Any other entry, or none, is no
// error; nothing is touched or opened.
void PretendiNonSpeciale(const std::string& percorso);

// True when percorso names an ordinary file: no folder, device, hidden or system entry. A link
// counts as what it leads to. False on any error.
bool FileOrdinario(const std::string& percorso);

// True when both names lead to the same existing file. False on any error.
bool StessoFile(const std::string& percorso, const std::string& altro);

// Remembers which very file stands under a name, so that another one put there later is told from
// it. Not copyable.
class Impronta
{
public:
    // Of what stands there now.
    explicit Impronta(std::string percorso);

    // Of the file opened as descrittore, created under that name. Error when it tells no number.
    Impronta(std::string percorso, int descrittore);

    ~Impronta();
    Impronta(const Impronta&) = delete;
    Impronta& operator=(const Impronta&) = delete;
    Impronta(Impronta&&) = delete;
    Impronta& operator=(Impronta&&) = delete;

    // Whether that file, a regular one, still stands under the name.
    bool Vale() const noexcept;

    // An error when it does not.
    void Pretendi() const;

    // Whether the open descriptor is that file.
    bool Riconosce(int descrittore) const noexcept;

    // Removes the file if it still stands there.
    void Togli() const noexcept;

private:
    void Ancora() noexcept;

    std::string m_percorso;
    // A descriptor or handle that keeps the number of the file from being given to another one.
    static constexpr std::intptr_t SenzaAncora = -1;
    std::intptr_t m_ancora = SenzaAncora;
    std::uint64_t m_dispositivo = 0;
    std::uint64_t m_indice = 0;
};

// A file that this program has just created and is writing. Every failure is an ErroreRuntime
// with the file's name and the reason. Not copyable; used by one thread.
class FileNuovo
{
public:
    // Replaces what stands under percorso: TogliFile, then an exclusive creation that follows no
    // link and opens nothing that somebody else put there in between.
    explicit FileNuovo(std::string percorso);

    // Closes; removes the file, if it is still ours, unless Conserva() was called.
    ~FileNuovo();

    FileNuovo(const FileNuovo&) = delete;
    FileNuovo& operator=(const FileNuovo&) = delete;
    FileNuovo(FileNuovo&&) = delete;
    FileNuovo& operator=(FileNuovo&&) = delete;

    const std::string& Percorso() const noexcept { return m_percorso; }

    // Appends all the bytes. On failure the file is cut back to its length before the call, so
    // that it holds whole blocks only.
    void Scrivi(std::string_view byte);

    // Closes and checks the result; the object can be reopened. Closed already: no effect.
    void Chiudi();

    // Opens the closed file again for appending. An error when the entry is no longer the very
    // file that this object created.
    void Riapri();

    // An error when the entry is no longer the very file that this object created.
    void PretendiNostro() const { m_impronta->Pretendi(); }

    // From now on the file stays when this object is destroyed.
    void Conserva() noexcept { m_conserva = true; }

private:
    void ScriviTutto(std::string_view byte);
    void Accorcia(std::uint64_t lunghezza) noexcept;

    std::string m_percorso;
    int m_descrittore = -1;
    std::uint64_t m_lunghezza = 0; // bytes that are in the file for certain
    std::optional<Impronta> m_impronta;
    bool m_conserva = false;
};

// The two system calls that can fail late, replaceable by tests that make the k-th one fail.
// They follow write(2) and close(2): a negative result sets errno.
struct ChiamateFile
{
    std::ptrdiff_t (*Scrivi)(int descrittore, const void* byte, std::size_t quanti);
    int (*Chiudi)(int descrittore);
};

extern constinit ChiamateFile ChiamateInUso;

// The calls of the system itself.
ChiamateFile ChiamateDelSistema();

// Writes all the bytes to an open descriptor, going on after short and interrupted writes.
// nome: what the error is about.
void ScriviSuDescrittore(int descrittore, std::string_view byte, const std::string& nome);
