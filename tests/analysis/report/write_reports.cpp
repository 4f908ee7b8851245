// write_reports DIRECTORY [FONTS]: writes each month as NAME.pdf, and the expected content of the page as
// NAME.json, into an existing directory. FONTS is a directory of typefaces to use.

#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "analysis/report/page_painter.h"
#include "analysis/report/report_page.h"
#include "tests/analysis/report/report_cases.h"
#include "ui/style/fonts.h"

namespace {

using namespace tidewatch;

QByteArray toJson(const ReportPage& page) {
    QJsonArray texts;
    for (const auto& text : page.texts) {
        texts.append(QJsonObject{{"text", QString::fromStdString(text.text)},
                                 {"x", text.x},
                                 {"baseline", text.baseline},
                                 {"width", text.width},
                                 {"right", text.alignment == PageText::Alignment::right}});
    }
    return QJsonDocument(QJsonObject{{"title", QString::fromStdString(page.title)}, {"texts", texts}})
        .toJson();
}

bool write(const QString& path, const QByteArray& content) {
    QFile file(path);
    return !content.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

}  // namespace

int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    const auto arguments = QGuiApplication::arguments();
    if (arguments.size() < 2) return 2;
    if (arguments.size() > 2) registerFonts(arguments[2]);
    for (const auto& [name, data] : test::reportCases()) {
        const auto page = layOutReport(data, pageTextWidth());
        const auto path = arguments[1] + "/" + QString::fromStdString(name);
        if (!write(path + ".pdf", toPdf(page)) || !write(path + ".json", toJson(page))) return 1;
    }
    return 0;
}
