#include "ui/style/fonts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QStringList>
#include <algorithm>

#include "shell/themes/fathom.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

QString systemFamily() {
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

QString systemMonospacedFamily() {
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QFont::Weight toQtWeight(FontWeight weight) {
    switch (weight) {
        case FontWeight::light:
            return QFont::Light;
        case FontWeight::regular:
            return QFont::Normal;
        case FontWeight::medium:
            return QFont::Medium;
        case FontWeight::semibold:
            return QFont::DemiBold;
        case FontWeight::bold:
            return QFont::Bold;
    }
    return QFont::Normal;
}

/// The family of the role, then its fallbacks, best first.
QStringList families(FontRole role) {
    const QStringList monospaced = {"DejaVu Sans Mono", "Liberation Mono", "Noto Sans Mono", "monospace"};
    QStringList serif = {"P052", "DejaVu Serif", "Liberation Serif", "Noto Serif", "serif"};
    switch (role) {
        case FontRole::serif:
            return QStringList{text(fathom::serifFamily)} + serif;
        case FontRole::mono:
            return QStringList{text(fathom::monoFamily)} + monospaced;
        case FontRole::sans:
            return {text(fathom::sansFamily), systemFamily(), "sans-serif"};
        case FontRole::system:
            return {systemFamily(), "sans-serif"};
        case FontRole::systemRounded:
            return {"Quicksand", "Nunito", text(fathom::sansFamily), systemFamily()};
        case FontRole::systemSerif:
            return serif;
        case FontRole::systemMonospaced:
            return QStringList{systemMonospacedFamily()} + monospaced;
    }
    return {};
}

QFont::StyleHint styleHint(FontRole role) {
    switch (role) {
        case FontRole::serif:
        case FontRole::systemSerif:
            return QFont::Serif;
        case FontRole::mono:
        case FontRole::systemMonospaced:
            return QFont::Monospace;
        default:
            return QFont::SansSerif;
    }
}

}  // namespace

QString fontsFolder() {
    const QDir program(QCoreApplication::applicationDirPath());
    const auto beside = program.filePath("Fonts");
    return QDir(beside).exists() ? beside : QDir::cleanPath(program.filePath("../share/tidewatch/Fonts"));
}

int registerFonts() {
    return registerFonts(fontsFolder());
}

int registerFonts(const QString& folder) {
    const QDir directory(folder);
    int registered = 0;
    for (const auto& name : directory.entryList({"*.ttf"}, QDir::Files, QDir::Name)) {
        if (QFontDatabase::addApplicationFont(directory.filePath(name)) >= 0) ++registered;
    }
    return registered;
}

QFont toQFont(const FontSpec& spec) {
    QFont font;
    font.setFamilies(families(spec.role));
    font.setStyleHint(styleHint(spec.role));
    font.setWeight(toQtWeight(spec.weight));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    font.setPixelSize(std::max(1, qRound(spec.size)));
    return font;
}

QFont monoNSFont(double size, FontWeight weight) {
    if (!QFontDatabase::hasFamily(text(fathom::monoFamily))) {
        return toQFont({FontRole::systemMonospaced, size, weight, Digits::monospaced});
    }
    const bool hasCut =
        weight == FontWeight::light || weight == FontWeight::medium || weight == FontWeight::semibold;
    return toQFont(fathom::mono(size, hasCut ? weight : FontWeight::regular));
}

}  // namespace tidewatch
