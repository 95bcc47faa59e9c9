// SPDX-License-Identifier: MIT
#include "eventreport.h"

#include "video/camerapicture.h"

#include <CorvelGui/TextCursor>

#include <QBuffer>
#include <QLocale>
#include <QPointer>

#include <algorithm>
#include <numeric>
#include <tuple>

using CorvelGui::TextCursor;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr qint64 reportBytes = qint64(32) << 20; // for the way from a key frame
constexpr int reportPictureWidth = 640;

QByteArray compressedPicture(const QImage& picture)
{
    constexpr int quality = 90;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool isLarge = picture.width() > reportPictureWidth;
    (isLarge ? picture.scaledToWidth(reportPictureWidth, Qt::SmoothTransformation) : picture)
        .save(&buffer, "JPG", quality);
    return bytes;
}

} // namespace

EventReport::EventReport(const ReportPlan& plan, QObject* parent)
    : QObject(parent), m_plan(plan), m_order(plan.events.size()), m_sights(plan.events.size())
{
    std::iota(m_order.begin(), m_order.end(), 0);
    std::ranges::stable_sort(m_order, [this](int one, int other) {
        const EventLine& a = m_plan.events[one];
        const EventLine& b = m_plan.events[other];
        return std::tie(a.track, a.time) < std::tie(b.track, b.time);
    });
}

EventReport::~EventReport() = default;

void EventReport::collectPictures()
{
    m_running = true;
    QMetaObject::invokeMethod(this, &EventReport::askForNext, Qt::QueuedConnection);
}

void EventReport::cancel()
{
    m_running = false;
    m_decoder.reset();
}

const Camera* EventReport::cameraOf(const EventLine& event) const
{
    const auto camera = std::ranges::find(m_plan.cameras, event.track, &Camera::identifier);
    return event.track.isEmpty() || camera == m_plan.cameras.end() ? nullptr : &*camera;
}

void EventReport::askForNext()
{
    if (!m_running)
        return;
    while (m_done < m_order.size()) {
        const EventLine& event = m_plan.events[m_order[m_done]];
        if (const Camera* camera = cameraOf(event)) {
            if (!m_decoder || m_decoded != event.track) {
                m_decoded = event.track;
                m_decoder = std::make_unique<CameraDecoder>(camera->files, reportBytes);
                connect(m_decoder.get(), &CameraDecoder::frameReady, this, &EventReport::take,
                        Qt::QueuedConnection);
            }
            m_decoder->request(event.time, Clip::Accuracy::Exact);
            return;
        }
        ++m_done; // belongs to no camera, and needs no picture
    }
    m_running = false;
    m_decoder.reset();
    Q_EMIT complete();
}

void EventReport::take(const VideoFrame& frame)
{
    // One that was still on its way when it was cancelled comes too late.
    if (!m_running || m_done >= m_order.size() ||
        frame.asked != m_plan.events[m_order[m_done]].time)
        return;
    const EventLine& event = m_plan.events[m_order[m_done]];
    const CameraPicture picture(*cameraOf(event), frame);
    Sight& sight = m_sights[m_order[m_done]];
    if (picture.image.isNull())
        sight.text = picture.message;
    else
        sight.picture = compressedPicture(picture.image);
    ++m_done;
    const QPointer<EventReport> alive(this);
    Q_EMIT collected(m_done);
    if (alive)
        askForNext();
}

bool EventReport::write(TextCursor& report, bool withPictures) const
{
    const QLocale locale;
    report.insertTitle(tr("Events"), m_plan.subject);
    QList<std::pair<QString, QString>> facts{{tr("Number"), locale.toString(m_plan.events.size())}};
    if (!m_plan.events.isEmpty()) {
        const auto [first, last] = std::ranges::minmax_element(m_plan.events, {}, &EventLine::time);
        facts.append({tr("From"), m_plan.times.exactDateTime(first->time)});
        facts.append({tr("To"), m_plan.times.exactDateTime(last->time)});
    }
    facts.append({tr("Time zone"), m_plan.times.zoneName()});
    report.insertKeyValues(facts);
    return writeTable(report, withPictures);
}

/// In characters: the longest word is not broken, and a longer text has a few lines.
double EventReport::widthOf(qsizetype column) const
{
    constexpr qsizetype longestWord = 20;
    constexpr qsizetype longestText = 60;
    constexpr double padding = 2.5;
    qsizetype word = 0;
    qsizetype text = 0;
    const auto look = [&word, &text](const QString& said) {
        text = std::max(text, said.size());
        for (const QStringView part : QStringView(said).split(u' '))
            word = std::max(word, part.size());
    };
    look(m_plan.columns[column]);
    for (const EventLine& event : m_plan.events)
        look(event.texts.value(column));
    word = std::min(word, longestWord);
    return double(word) + padding + double(std::min(text, longestText) - word) / 5;
}

bool EventReport::writeTable(TextCursor& report, bool withPictures) const
{
    TextCursor::Table table{.header = m_plan.columns, .rows = m_plan.events.size()};
    for (qsizetype column = 0; column < m_plan.columns.size(); ++column)
        table.widths.append(widthOf(column));
    if (withPictures) {
        constexpr double share = 0.25;
        table.header.prepend(tr("Picture"));
        table.widths.prepend(share *
                             std::accumulate(table.widths.begin(), table.widths.end(), 0.0));
    }
    table.row = [this, withPictures](qsizetype row) {
        QList<TextCursor::Cell> cells;
        if (withPictures) {
            const Sight& sight = m_sights[row];
            cells.append({.text = sight.text, .picture = QImage::fromData(sight.picture)});
        }
        for (const QString& text : m_plan.events[row].texts)
            cells.append({.text = text});
        return cells;
    };
    return report.insertTable(table) == TextCursor::Outcome::Complete;
}

} // namespace Review
