#include "tests/support/presenter_probe.h"

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QColor>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaProperty>
#include <QSequentialIterable>

namespace tidewatch::test {
namespace {

QJsonValue valueOf(const QVariant& value);

QJsonArray rowsOf(const QAbstractItemModel& model) {
    QJsonArray rows;
    const int role = model.roleNames().key("row");
    for (int row = 0; row < model.rowCount(); ++row) rows.append(valueOf(model.index(row, 0).data(role)));
    return rows;
}

QJsonObject gadget(const QVariant& value) {
    QJsonObject fields;
    const auto* meta = value.metaType().metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const auto property = meta->property(i);
        fields[property.name()] = valueOf(property.readOnGadget(value.constData()));
    }
    return fields;
}

QJsonValue valueOf(const QVariant& value) {
    if (const auto* object = value.value<QObject*>()) {
        if (const auto* model = qobject_cast<const QAbstractItemModel*>(object)) return rowsOf(*model);
        return probe(*object);
    }
    if (value.typeId() == QMetaType::QColor) return value.value<QColor>().name(QColor::HexArgb);
    if (value.typeId() == QMetaType::Double) return std::round(value.toDouble() * 1e4) / 1e4;
    if (value.metaType().flags() & QMetaType::IsGadget) return gadget(value);
    if (value.typeId() != QMetaType::QString && value.canConvert<QSequentialIterable>()) {
        QJsonArray items;
        for (const auto& item : value.value<QSequentialIterable>()) items.append(valueOf(item));
        return items;
    }
    return QJsonValue::fromVariant(value);
}

QStringList linesOf(const QByteArray& text) {
    return QString::fromUtf8(text).split('\n');
}

QString difference(const QStringList& expected, const QStringList& actual) {
    QStringList lines;
    for (qsizetype i = 0; i < std::max(expected.size(), actual.size()) && lines.size() < 40; ++i) {
        if (expected.value(i) == actual.value(i)) continue;
        lines.append(QString("line %1\n- %2\n+ %3").arg(i + 1).arg(expected.value(i), actual.value(i)));
    }
    return lines.join('\n');
}

}  // namespace

QJsonObject probe(const QObject& presenter) {
    QJsonObject shown;
    const auto* meta = presenter.metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const auto property = meta->property(i);
        shown[property.name()] = valueOf(property.read(&presenter));
    }
    return shown;
}

void expectGolden(const QJsonObject& shown, const QString& path) {
    QFile file(path);
    const auto actual = QJsonDocument(shown).toJson();
    if (qEnvironmentVariableIntValue("TIDEWATCH_WRITE_GOLDEN") == 1) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(file.fileName());
        file.write(actual);
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    const auto expected = file.readAll();
    EXPECT_TRUE(expected == actual) << qPrintable(path) << ":\n"
                                    << qPrintable(difference(linesOf(expected), linesOf(actual)));
}

}  // namespace tidewatch::test
