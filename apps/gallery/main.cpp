// SPDX-License-Identifier: MIT
#include "console.h"
#include "gallerywindow.h"
#include "pages.h"
#include "pictures.h"

#include <CorvelGui/PLanguage>

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>

#include <numeric>

using namespace Gallery;
using namespace Qt::StringLiterals;

namespace {

int fail(const QString& message)
{
    Console::printError(u"corvel-gallery: %1\n"_s.arg(message));
    return 1;
}

QString knownTitles()
{
    QStringList titles;
    for (const Page& page : pages())
        titles << page.title;
    return titles.join(u", "_s);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"Corvel"_s);
    QApplication::setApplicationName(u"corvel-gallery"_s);
    QApplication::setApplicationDisplayName(u"Corvel Gallery"_s);

    const QCommandLineOption pageOption(u"page"_s, u"Show this page (%1)."_s.arg(knownTitles()),
                                        u"name"_s);
    const QCommandLineOption lookOption(u"look"_s, u"Start in this look: dark or light."_s,
                                        u"look"_s, u"dark"_s);
    const QCommandLineOption languageOption(
        u"language"_s, u"The language of the widgets: en or de."_s, u"key"_s, u"en"_s);
    const QCommandLineOption inspectOption(
        u"inspect"_s, u"Show the first widget of this class on the page in the inspector."_s,
        u"class"_s);
    const QCommandLineOption picturesOption(
        u"pictures"_s, u"Write the pages as PNG files, in both looks at scale 1 and 2."_s,
        u"folder"_s);
    QCommandLineOption oneScale(QString::fromLatin1(oneScaleOption));
    oneScale.setFlags(QCommandLineOption::HiddenFromHelp);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Every widget family of CorvelGui on a page of its own."_s);
    parser.addHelpOption();
    parser.addOptions(
        {pageOption, lookOption, languageOption, inspectOption, picturesOption, oneScale});
    parser.process(app);

    const QString title = parser.value(pageOption);
    const int index = title.isEmpty() ? 0 : pageIndex(title);
    if (index < 0)
        return fail(u"there is no page \"%1\", only: %2"_s.arg(title, knownTitles()));
    const QString look = parser.value(lookOption);
    if (look != u"dark"_s && look != u"light"_s)
        return fail(u"the look is dark or light, not \"%1\""_s.arg(look));

    const QString language = parser.value(languageOption);
    if (language != u"en"_s && language != u"de"_s)
        return fail(u"the language is en or de, not \"%1\""_s.arg(language));
    if (parser.isSet(languageOption))
        QLocale::setDefault(QLocale(language));
    CorvelGui::PLanguage::useLanguage(nullptr, language);

    const QString folder = parser.value(picturesOption);
    if (!folder.isEmpty() && !parser.isSet(oneScale))
        return writePicturesAtEveryScale(QCoreApplication::arguments().sliced(1)) ? 0 : 1;

    GalleryWindow window;
    window.showPage(index);
    const QString className = parser.value(inspectOption);
    if (!className.isEmpty() && !window.inspect(className))
        return fail(u"there is no %1 on the page"_s.arg(className));
    if (!folder.isEmpty()) {
        QList<int> indexes(title.isEmpty() ? qsizetype(pages().size()) : 1);
        std::iota(indexes.begin(), indexes.end(), index);
        return writePictures(window, indexes, folder) ? 0 : 1;
    }
    window.setDark(look == u"dark"_s);
    window.showInspector();
    window.show();
    return app.exec();
}
