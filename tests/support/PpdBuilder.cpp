#include "tests/support/PpdBuilder.h"
#include "tests/support/TestPaths.h"

#include <stdexcept>

#include <QFile>

namespace corvana::test {

using namespace Qt::StringLiterals;

PpdBuilder &PpdBuilder::modelNumber(int number)
{
    m_modelNumber = number;
    return *this;
}

PpdBuilder &PpdBuilder::shortNickName(const QByteArray &name)
{
    m_shortNickName = name;
    return *this;
}

PpdBuilder &PpdBuilder::option(const QByteArray &keyword, const QByteArray &text,
                               const QByteArray &defaultChoice, const QList<PpdChoice> &choices)
{
    m_body += "*OpenUI *" + keyword + '/' + text + ": PickOne\n";
    m_body += "*OrderDependency: 10 AnySetup *" + keyword + '\n';
    m_body += "*Default" + keyword + ": " + defaultChoice + '\n';
    for (const auto &[choice, choiceText] : choices)
        m_body += '*' + keyword + ' ' + choice + '/' + choiceText + ": \"\"\n";
    m_body += "*CloseUI: *" + keyword + '\n';
    return *this;
}

PpdBuilder &PpdBuilder::onOff(const QByteArray &keyword, const QByteArray &text,
                              const QByteArray &defaultChoice)
{
    return option(keyword, text, defaultChoice, {{"OFF", "Off"}, {"ON", "On"}});
}

PpdBuilder &PpdBuilder::customInteger(const QByteArray &keyword, const QByteArray &parameter,
                                      const QByteArray &text, int minimum, int maximum)
{
    line("*Custom" + keyword + " True/Custom: \"\"");
    return line("*ParamCustom" + keyword + ' ' + parameter + '/' + text + ": 1 int " +
                QByteArray::number(minimum) + ' ' + QByteArray::number(maximum));
}

PpdBuilder &PpdBuilder::customOfType(const QByteArray &keyword, const QByteArray &parameter,
                                     const QByteArray &type)
{
    line("*Custom" + keyword + " True/Custom: \"\"");
    return line("*ParamCustom" + keyword + ' ' + parameter + '/' + parameter + ": 1 " + type +
                " 10 20");
}

PpdBuilder &PpdBuilder::customPageSize(int minimumWidth, int minimumHeight, int maximumWidth,
                                       int maximumHeight)
{
    const auto range = [](int minimum, int maximum) {
        return QByteArray::number(minimum) + ' ' + QByteArray::number(maximum);
    };
    line("*NonUIOrderDependency: 10 AnySetup *CustomPageSize");
    line("*CustomPageSize True/Custom: \"pop pop pop\"");
    line("*ParamCustomPageSize Width: 1 points " + range(minimumWidth, maximumWidth));
    line("*ParamCustomPageSize Height: 2 points " + range(minimumHeight, maximumHeight));
    line("*ParamCustomPageSize WidthOffset: 3 points 0 0");
    line("*ParamCustomPageSize HeightOffset: 4 points 0 0");
    return line("*ParamCustomPageSize Orientation: 5 int 0 0");
}

PpdBuilder &PpdBuilder::line(const QByteArray &line)
{
    m_body += line + '\n';
    return *this;
}

PpdBuilder &PpdBuilder::driverMatchesColors()
{
    return line("*APSupportsCustomColorMatching: True");
}

PpdBuilder &PpdBuilder::constraint(const QByteArray &keyword, const QByteArray &choice,
                                   const QByteArray &otherKeyword, const QByteArray &otherChoice)
{
    line("*UIConstraints: *" + keyword + ' ' + choice + " *" + otherKeyword + ' ' + otherChoice);
    return line("*UIConstraints: *" + otherKeyword + ' ' + otherChoice + " *" + keyword + ' ' +
                choice);
}

QByteArray PpdBuilder::text() const
{
    return "*PPD-Adobe: \"4.3\"\n"
           "*FormatVersion: \"4.3\"\n"
           "*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n"
           "*LanguageEncoding: UTF-8\n"
           "*PCFileName: \"TEST.PPD\"\n"
           "*Manufacturer: \"Corvana\"\n"
           "*Product: \"(Corvana Test)\"\n"
           "*ModelName: \"Corvana Test\"\n"
           "*ShortNickName: \"" +
           m_shortNickName +
           "\"\n"
           "*NickName: \"Corvana Test, PostScript\"\n"
           "*PSVersion: \"(3010.000) 0\"\n"
           "*LanguageLevel: \"3\"\n"
           "*ColorDevice: True\n"
           "*cupsModelNumber: " +
           QByteArray::number(m_modelNumber) +
           "\n"
           "*OpenUI *PageSize/Paper Size: PickOne\n"
           "*OrderDependency: 10 AnySetup *PageSize\n"
           "*DefaultPageSize: A4\n"
           "*PageSize A4/A4: \"\"\n"
           "*PageSize Postcard/Postcard: \"\"\n"
           "*CloseUI: *PageSize\n"
           "*DefaultImageableArea: A4\n"
           "*ImageableArea A4/A4: \"12 12 583 830\"\n"
           "*ImageableArea Postcard/Postcard: \"12 12 272 407\"\n"
           "*DefaultPaperDimension: A4\n"
           "*PaperDimension A4/A4: \"595 842\"\n"
           "*PaperDimension Postcard/Postcard: \"284 419\"\n" +
           m_body;
}

QByteArray samplePpd(int modelNumber)
{
    QFile file(corvana::test::sourceFile(u"resources/ppd/corvana-cl5.ppd"_s));
    const QByteArray model = "*cupsModelNumber: 5\n";
    QByteArray text;
    if (file.open(QIODevice::ReadOnly))
        text = file.readAll();
    if (text.count(model) != 1)
        throw std::runtime_error(file.fileName().toStdString() +
                                 " is not the PPD that is expected");
    return text.replace(model, "*cupsModelNumber: " + QByteArray::number(modelNumber) + '\n');
}

} // namespace corvana::test
