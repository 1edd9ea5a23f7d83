#pragma once

#include <optional>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace corvana::test {

/// What the lines of a sample printer's PPD say, read without the PPD functions that the program
/// itself reads them with.
class PpdLines
{
public:
    /// A choice of one option that excludes a choice of another.
    struct Conflict
    {
        QString keyword, choice;
        QString otherKeyword, otherChoice;
    };
    /// The whole numbers that an option takes beside its choices.
    struct Numbers
    {
        int minimum = 0;
        int maximum = 0;
        QString text;
    };

    /// Texts are those of `language` ("ja", "zh_CN"), where the PPD has them, else the English
    /// ones. Errors: throws std::runtime_error when the file cannot be read.
    PpdLines(const QString &printer, const QString &language);

    int modelNumber() const { return m_modelNumber; }
    bool has(const QString &keyword) const { return m_choices.contains(keyword); }
    /// In the order of the file.
    QStringList choices(const QString &keyword) const { return m_choices.value(keyword); }
    QString defaultChoice(const QString &keyword) const { return m_defaults.value(keyword); }
    /// The text of an option, or with a choice that of the choice.
    QString text(const QString &keyword, const QString &choice = {}) const;
    /// What makes the printer take a choice.
    QByteArray code(const QString &keyword, const QString &choice) const;
    /// Nothing for an option that takes no numbers of that name.
    std::optional<Numbers> numbers(const QString &keyword, const QString &parameter) const;
    const QList<Conflict> &conflicts() const { return m_conflicts; }

private:
    void readLine(const QString &line, const QString &language);

    int m_modelNumber = 0;
    QMap<QString, QStringList> m_choices;
    QMap<QString, QString> m_defaults;
    QMap<QString, QString> m_texts; // by "KEYWORD" or "KEYWORD CHOICE"
    QMap<QString, QString> m_translations;
    QMap<QString, QString> m_codes;
    QMap<QString, Numbers> m_numbers; // by "KEYWORD PARAMETER"
    QList<Conflict> m_conflicts;
};

} // namespace corvana::test
