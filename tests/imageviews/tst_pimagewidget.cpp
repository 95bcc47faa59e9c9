// SPDX-License-Identifier: MIT
#include "scriptedserver.h"
#include "testsupport.h"

#include <CorvelGui/PImageAndLabelWidget>
#include <CorvelGui/PImageWidget>

#include <QBuffer>

using CorvelGui::PImageAndLabelWidget;
using CorvelGui::PImageWidget;
using LocalHttp::Misbehaviour;
using State = PImageWidget::State;
using namespace std::chrono_literals;

namespace {

QByteArray picture(const QColor& color)
{
    QImage image(60, 30, QImage::Format_RGB32);
    image.fill(color);
    QByteArray data;
    QBuffer buffer(&data);
    image.save(&buffer, "PNG");
    return data;
}

QString description(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Description);
}

} // namespace

class TestPImageWidget : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(u"en_US"_s));
        m_server.script("/red", picture(Qt::red));
        m_server.script("/never", {}, Misbehaviour::Never);
    }

    void picturesComeFromServersAndFiles()
    {
        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath(u"ä #1.png"_s), picture(Qt::blue));
        PImageWidget widget;
        QStringList heard;
        connect(&widget, &PImageWidget::imageChanged, this, [&heard] { heard << u"image"_s; });
        connect(&widget, &PImageWidget::stateChanged, this, [&](State state) {
            QCOMPARE(state, widget.state());
            heard << QVariant::fromValue(state).toString();
        });
        widget.setSource(m_server.address(u"/red"_s));
        QCOMPARE(description(widget), u"Loading…"_s);
        QTRY_COMPARE(heard.join(u' '), u"Loading image Ready"_s);
        QCOMPARE(widget.image().pixelColor(3, 3), QColor(Qt::red));
        QCOMPARE(description(widget), u"60 × 30 pixels"_s);

        // The picture stays while it is got again, and goes when it cannot be had.
        heard.clear();
        m_server.script("/red", LocalHttp::Answer::error(404, "Not Found"));
        widget.reload();
        QVERIFY(!widget.image().isNull());
        QTRY_COMPARE(heard.join(u' '), u"Loading image Failed"_s);
        QCOMPARE(description(widget), u"The server answered with status 404."_s);
        m_server.script("/red", picture(Qt::red));

        // The request that is replaced says nothing more.
        heard.clear();
        widget.setSource(m_server.address(u"/red"_s));
        widget.setSource(QUrl::fromLocalFile(file));
        QTRY_COMPARE(heard.join(u' '), u"Loading image Ready"_s);
        QCOMPARE(widget.image().pixelColor(3, 3), QColor(Qt::blue));
        widget.setSource({});
        QCOMPARE(heard.join(u' '), u"Loading image Ready image Empty"_s);
        QCOMPARE(description(widget), u"No picture"_s);
    }

    void failuresAreTold()
    {
        const QByteArray body = picture(Qt::red);
        const std::tuple<QString, Misbehaviour, QString> rows[] = {
            {u"/endless"_s, Misbehaviour::Endless, u"The server sends more than 97.66 KiB."_s},
            {u"/silent"_s, Misbehaviour::Never, u"The server does not answer."_s},
            {u"/cut"_s, Misbehaviour::Cut, u"The connection was closed too early."_s},
            {u"/loop"_s, Misbehaviour::RedirectLoop, u"The server leads in circles."_s},
            {u"/file"_s, Misbehaviour::RedirectFile,
             u"The server leads to an address that is not safe."_s},
            {u"/portal"_s, Misbehaviour::Portal, u"This is not a picture that can be shown."_s}};
        for (const auto& [path, how, text] : rows) {
            m_server.script(path.toLatin1(), body, how);
            PImageWidget widget;
            widget.descriptor()->setLimits({.bytes = 100'000});
            widget.descriptor()->setRequestLimits({.silence = 300ms, .size = 1'000'000});
            widget.setSource(m_server.address(path));
            QTRY_COMPARE(widget.state(), State::Failed);
            QCOMPARE(widget.errorText(), text);
        }
        PImageWidget widget;
        for (const QString& source : {u"ftp://a.example/b"_s, u"data:image/png,x"_s, u"b.png"_s}) {
            widget.setSource(QUrl(source));
            QTRY_COMPARE(widget.errorText(), u"This is not the address of a server."_s);
        }
    }

    void manyRequestsTakeTurns()
    {
        const qsizetype before = m_server.requests().size();
        std::vector<std::unique_ptr<PImageWidget>> wall(9);
        for (auto& widget : wall) {
            widget = std::make_unique<PImageWidget>();
            widget->setSource(m_server.address(u"/never"_s));
        }
        QTRY_COMPARE(m_server.requests().size(), before + 6);
        wall.pop_back(); // waits
        wall[0]->setImage({});
        wall[1].reset();
        QTRY_COMPARE(m_server.requests().size(), before + 8);
        // Every slot may delete the widget.
        auto* doomed = new PImageWidget;
        wall.clear();
        connect(doomed, &PImageWidget::imageChanged, doomed, [doomed] { delete doomed; });
        const QPointer<PImageWidget> alive(doomed);
        doomed->setSource(m_server.address(u"/red"_s));
        QTRY_VERIFY(!alive);
    }

    void theNextImageOfTheSameSizeShows()
    {
        PImageWidget widget;
        QImage image(20, 20, QImage::Format_RGB32);
        for (const QColor color : {Qt::red, Qt::blue}) {
            image.fill(color);
            widget.setImage(image);
            QCOMPARE(widget.grab().toImage().pixelColor(widget.rect().center()), color);
        }
    }

    void labelsNameTheirPictures()
    {
        PImageAndLabelWidget widget;
        widget.setText(u"<i>Gate & yard, a name that is much too long for its place"_s);
        const QAccessibleInterface* image =
            QAccessible::queryAccessibleInterface(widget.imageWidget());
        QCOMPARE(image->role(), QAccessible::Graphic);
        QCOMPARE(image->text(QAccessible::Name), widget.text());
        widget.imageWidget()->setAspectRatio(2);
        QCOMPARE(widget.imageWidget()->heightForWidth(300), 150);
    }

private:
    ScriptedServer m_server;
};

QTEST_MAIN(TestPImageWidget)
#include "tst_pimagewidget.moc"
