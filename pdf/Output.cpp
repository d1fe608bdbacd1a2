// The three ways out of the writer; foreign failures become the writer's own error here.

#include "Output.h"
#include "Failure.h"

#include "ErroreRuntime.h"
#include "FileNuovo.h"

#include <new>
#include <ostream>
#include <utility>

namespace pdf {

namespace {

class FileOutput : public Output
{
public:
    explicit FileOutput(const std::string& fileName)
        : m_file(fileName)
    {
    }

    void Write(std::string_view bytes) override { m_file.Scrivi(bytes); }
    void Close() override { m_file.Chiudi(); }
    void Keep() override { m_file.Conserva(); }

private:
    FileNuovo m_file;
};

[[noreturn]] void Refused(std::string reason)
{
    prFail(NumeroErrore::ErroreInputOutput, std::move(reason));
}

constexpr const char* StreamFailed = "il flusso non accetta altri dati";

// Runs what belongs to somebody else: whatever it throws becomes the one type of error of the
// writer. Where memory is too short even for that, std::bad_alloc passes.
template <typename Action>
void Guarded(const Action& action)
{
    try {
        action();
    } catch (const ErroreRuntime&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw ErroreRuntime(NumeroErrore::MemoriaEsaurita);
    } catch (const std::exception& error) {
        Refused(error.what());
    } catch (...) {
        Refused("chi riceve il documento lo ha rifiutato");
    }
}

class SinkOutput : public Output
{
public:
    explicit SinkOutput(std::function<void(std::string_view)> sink)
        : m_sink(std::move(sink))
    {
    }

    void Write(std::string_view bytes) override
    {
        Guarded([&] { m_sink(bytes); });
    }
    void Close() override {}

private:
    std::function<void(std::string_view)> m_sink;
};

class StreamOutput : public Output
{
public:
    // A stream that has failed before is refused now: the first piece may be far away.
    explicit StreamOutput(std::ostream& stream)
        : m_stream(stream)
    {
        RequireGood();
    }

    void Write(std::string_view bytes) override
    {
        Checked([&] { m_stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size())); });
    }

    void Close() override
    {
        Checked([&] { m_stream.flush(); });
    }

private:
    void RequireGood() const
    {
        if (!m_stream.good()) Refused(StreamFailed);
    }

    // Where its exceptions are on, a stream tells its own failures in words without a reason.
    template <typename Action>
    void Checked(const Action& action) const
    {
        Guarded([&] {
            try {
                action();
            } catch (const std::ios_base::failure&) {
                Refused(StreamFailed);
            }
            RequireGood();
        });
    }

    std::ostream& m_stream;
};

} // namespace

std::unique_ptr<Output> prToFile(const std::string& fileName)
{
    return std::make_unique<FileOutput>(fileName);
}

std::unique_ptr<Output> prToSink(std::function<void(std::string_view)> sink)
{
    return std::make_unique<SinkOutput>(std::move(sink));
}

std::unique_ptr<Output> prToStream(std::ostream& stream)
{
    return std::make_unique<StreamOutput>(stream);
}

} // namespace pdf
