// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include "inspector/codewriter.h"
#include "inspector/inspector.h"
#include "inspector/knownwidgets.h"
#include "inspector/propertymodel.h"

#include <CorvelGui/PErrorLabel>
#include <CorvelGui/RangeSlider>

#include <QDirIterator>
#include <QPlainTextEdit>
#include <QTableView>

using namespace CorvelGui;
using namespace Gallery;

namespace {

/// What the headers say sets the properties, by class and property in lower case.
QHash<QString, QString> setters()
{
    QHash<QString, QString> found;
    const QRegularExpression property(
        u"Q_PROPERTY\\([^()]*?(\\w+)\\s+READ\\s+\\w+\\s+WRITE\\s+(\\w+)"_s);
    QDirIterator files(QStringLiteral(SOURCES), {u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString text = QString::fromUtf8(file.readAll());
        for (auto match = property.globalMatch(text); match.hasNext();) {
            const auto next = match.next();
            found.insert(files.fileInfo().baseName() + u' ' + next.captured(1), next.captured(2));
        }
    }
    return found;
}

QModelIndex valueOf(const QTableView& table, const QString& property)
{
    const QModelIndexList names = table.model()->match(table.model()->index(0, 0), Qt::DisplayRole,
                                                       property, 1, Qt::MatchExactly);
    return names.isEmpty() ? QModelIndex()
                           : names.first().siblingAtColumn(PropertyModel::ValueColumn);
}

} // namespace

class TestInspector : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void codeCallsWhatSetsTheProperty()
    {
        const auto known = setters();
        int count = 0;
        for (const KnownWidget& widget : knownWidgets()) {
            for (const QMetaProperty& property : inspectedProperties(*widget.meta)) {
                if (!isLibraryClass(*property.enclosingMetaObject()))
                    continue;
                const QString className =
                    QString::fromLatin1(property.enclosingMetaObject()->className());
                const QString key = className.section(u"::"_s, -1).toLower() + u' ' +
                                    QLatin1StringView(property.name());
                QCOMPARE(key + u' ' + setterOf(property), key + u' ' + known.value(key));
                ++count;
            }
        }
        QVERIFY(count > 100);
    }

    void codeOfEveryWidget()
    {
        for (const KnownWidget& known : knownWidgets()) {
            const std::unique_ptr<QWidget> widget(known.create(nullptr));
            const QString code = CodeWriter(*widget).code();
            QVERIFY2(code.endsWith(u";\n"_s), qPrintable(code)); // nothing to set in a new one
        }
    }

    void editsByKeys()
    {
        QWidget window;
        auto* both = new QHBoxLayout(&window);
        auto* page = new QWidget;
        auto* inspector = new Inspector;
        both->addWidget(page);
        both->addWidget(inspector);
        auto* layout = new QVBoxLayout(page);
        auto* label = new PErrorLabel;
        label->setError(u"No \"host\""_s);
        auto* slider = new RangeSlider;
        layout->addWidget(label);
        layout->addWidget(slider);
        inspector->setPage(page);
        QCOMPARE(inspector->inspected(), label);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto* code = inspector->findChild<QPlainTextEdit*>();
        QVERIFY(code->toPlainText().contains(
            u"label->setError(QStringLiteral(u\"No \\\"host\\\"\"));"_s));
        auto* pick = inspector->findChild<QToolButton*>();
        QTest::mouseClick(pick, Qt::LeftButton);
        QTest::mouseClick(slider, Qt::LeftButton, {}, {2, 2});
        QCOMPARE(inspector->inspected(), slider);
        QVERIFY(!pick->isChecked());
        QCOMPARE(slider->lowerValue(), 0); // the click was for the inspector

        auto* table = inspector->findChild<QTableView*>();
        table->setFocus();
        table->setCurrentIndex(valueOf(*table, u"lowerValue"_s));
        QTest::keyClick(table, Qt::Key_F2);
        QWidget* editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, u"8"_s);
        QCOMPARE(slider->lowerValue(), 8); // at once
        QVERIFY(code->toPlainText().contains(u"slider->setLowerValue(8);"_s));
        QTest::keyClick(editor, Qt::Key_Return);

        slider->setUpperValue(50);
        QCOMPARE(valueOf(*table, u"upperValue"_s).data().toInt(), 50);
        table->setCurrentIndex(valueOf(*table, u"enabled"_s));
        QTest::keyClick(table, Qt::Key_Space);
        QVERIFY(!slider->isEnabled());

        QTest::mouseClick(inspector->findChild<QPushButton*>(), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), code->toPlainText());
        delete slider;
        QCOMPARE(code->toPlainText(), QString());
    }
};

QTEST_MAIN(TestInspector)
#include "tst_inspector.moc"
