#pragma once

#include <functional>
#include <memory>

#include <QString>

namespace corvana {

/// A file that takes its name when it is complete.
///
/// It is made beside its place, with the permissions of the user's other new files, and takes that
/// in one step: in place of the file that stood there at the beginning, which is untouched until
/// then. A file that has appeared there since is nobody's to replace. What was not published is
/// removed.
class ResultFile
{
public:
    /// Who has chosen its name.
    enum class NamedBy {
        User,   ///< what stands there is replaced
        Nobody, ///< the next name that is free will do as well, and nothing is replaced
    };
    /// `name`: absolute, or in the current folder; a link leads to the place.
    /// Errors: null; `problem` then says what stands in the way.
    static std::unique_ptr<ResultFile> create(const QString &name, QString *problem,
                                              NamedBy by = NamedBy::User);
    ~ResultFile();
    ResultFile(const ResultFile &) = delete;
    ResultFile &operator=(const ResultFile &) = delete;

    /// Where to write until it is complete. Absolute.
    QString path() const { return m_path; }
    /// The name that it takes, as a user says it; absolute. One that nobody has chosen is known
    /// when it was published.
    QString name() const { return m_name; }

    /// Has what was written reach its disk or its server, which may say only then that it has no
    /// room, and may take long. Answers why that failed; empty when it did not. To be called on any
    /// thread; it may outlive the result.
    std::function<QString()> flushing() const;

    /// Gives it its name. Answers why that failed; empty when it did not.
    QString publish();

private:
    ResultFile() = default;
    bool takeName();

    QString m_given; // as it was said, for messages
    QString m_name;
    QString m_place; // that the name leads to
    QString m_path;
    NamedBy m_namedBy = NamedBy::User;
    bool m_replaces = false; // a file that stood there at the beginning
    bool m_published = false;
};

/// Whether two paths lead to one file, which is there.
bool isSameFile(const QString &one, const QString &other);

} // namespace corvana
