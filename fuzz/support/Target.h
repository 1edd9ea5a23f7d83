#pragma once

#include <string_view>

#include <QByteArray>
#include <QString>

/// Hostile input for one surface of the product, and what has to be true whatever it is.
namespace corvana::fuzz {

/// One surface: takes any bytes and requires what its comment promises. A target is a static object
/// in a source of its own; all of them are linked into one program, which runs the one by whose
/// name it is called.
///
/// Thread: the main thread, with an application and without a display.
class Target
{
public:
    using Run = void (*)(const QByteArray &input);

    /// `name` is also that of the folder of its seeds.
    Target(const char *name, Run function);

    /// Null when there is none of that name.
    static const Target *named(std::string_view name);

    const char *name() const { return m_name; }
    void run(const QByteArray &input) const { m_run(input); }

private:
    const char *m_name;
    Run m_run;
    const Target *m_next;
};

/// Ends the program with a message that names what was promised, unless it holds.
void require(bool holds, const char *promise, const QString &detail = {});

/// What a program needs that runs targets: a home of its own, without any server, printers or
/// preferences of the user's; an application without a display; and nobody who is told of what the
/// product logs, unless CORVANA_FUZZ_LOG is set. It is put together all the same.
void prepareProgram(int &argc, char **argv);

} // namespace corvana::fuzz
