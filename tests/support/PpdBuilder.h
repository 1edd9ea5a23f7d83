#pragma once

#include <utility>

#include <QByteArray>
#include <QList>

namespace corvana::test {

/// A choice of a PPD option: keyword and display text, in the bytes of the file.
using PpdChoice = std::pair<QByteArray, QByteArray>;

/// Writes the text of a small PPD: nothing but what a test needs. The file is declared as UTF-8,
/// and texts go into it byte by byte, so that a test can also write one that is not.
class PpdBuilder
{
public:
    /// Range: a whole number; the models that the panels know are 1 and more.
    PpdBuilder &modelNumber(int number);
    /// Range: at most 31 characters, as CUPS keeps no more.
    PpdBuilder &shortNickName(const QByteArray &name);
    /// An option of which one choice can be picked, `defaultChoice` by default.
    PpdBuilder &option(const QByteArray &keyword, const QByteArray &text,
                       const QByteArray &defaultChoice, const QList<PpdChoice> &choices);
    /// An option of the choices OFF and ON.
    PpdBuilder &onOff(const QByteArray &keyword, const QByteArray &text,
                      const QByteArray &defaultChoice = "OFF");
    /// Lets an option, added before, take a whole number from `minimum` to `maximum`.
    PpdBuilder &customInteger(const QByteArray &keyword, const QByteArray &parameter,
                              const QByteArray &text, int minimum, int maximum);
    /// Lets an option, added before, take a custom value of another type ("string", "real").
    PpdBuilder &customOfType(const QByteArray &keyword, const QByteArray &parameter,
                             const QByteArray &type);
    /// Lets the printer take papers of any size in between. Units: points.
    PpdBuilder &customPageSize(int minimumWidth, int minimumHeight, int maximumWidth,
                               int maximumHeight);
    /// Any other line, for instance an attribute or a constraint.
    PpdBuilder &line(const QByteArray &line);
    /// The printer's driver can match colours itself.
    PpdBuilder &driverMatchesColors();
    /// Makes the two choices exclude each other.
    PpdBuilder &constraint(const QByteArray &keyword, const QByteArray &choice,
                           const QByteArray &otherKeyword, const QByteArray &otherChoice);

    QByteArray text() const;

private:
    int m_modelNumber = 5;
    QByteArray m_shortNickName = "Corvana Test";
    QByteArray m_body;
};

/// The PPD of the sample printer that the project ships, as another model of its family.
/// Errors: throws std::runtime_error when the file is missing or names no model.
QByteArray samplePpd(int modelNumber);

} // namespace corvana::test
