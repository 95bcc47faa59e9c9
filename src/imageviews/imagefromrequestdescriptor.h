// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/RequestLimits>
#include <CorvelGui/ImageHelper>
#include <CorvelGui/corvelgui_export.h>

#include <QImage>
#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>

namespace CorvelGui {

/// Gets a picture from an address or a file and reads it on a thread, so that the window goes on.
/// Requests go by Corvel::ProxyUserSettings::m_Settings and keep within limits, as those of
/// Corvel::ProxyNetworkAccessManager; at most six of all descriptors of a program run at a time,
/// and two pictures are read.
///
/// Every request ends with exactly one of received() and failed(), unless it is cancelled, replaced
/// by another one, or its descriptor is deleted, as it is with its parent. Both come from the event
/// loop, and every slot may delete the descriptor. To be used on the GUI thread.
class CORVELGUI_EXPORT ImageFromRequestDescriptor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Corvel::RequestLimits requestLimits READ requestLimits WRITE setRequestLimits)

public:
    explicit ImageFromRequestDescriptor(QObject* parent = nullptr);
    ~ImageFromRequestDescriptor() override;

    /// Of the picture; for requests that are made from now on.
    void setLimits(const ImageHelper::Limits& limits);
    const ImageHelper::Limits& limits() const;
    /// Of the way from a server: its times, and with limits() the size. The default is a minute, 15
    /// seconds of silence and 64 MiB; for requests that are made from now on.
    void setRequestLimits(const Corvel::RequestLimits& limits);
    const Corvel::RequestLimits& requestLimits() const;

    /// Requests the picture at a web address, a local file ("file:") or a resource ("qrc:"). A
    /// request that is under way is cancelled.
    void request(const QUrl& source);
    /// The same for a file by its path; ":/" begins that of a resource.
    void requestFile(const QString& path);
    /// Ends the request without a signal.
    void cancel();
    /// True from a request until just before its outcome is emitted.
    bool isBusy() const;

Q_SIGNALS:
    /// Emitted when a picture was read. @p fullSize is its size in pixels where it comes from; the
    /// image may be smaller.
    void received(const QImage& image, const QSize& fullSize);
    /// Emitted when there is no picture. @p text tells the user why and holds no text of a server.
    void failed(const QString& text);

private:
    void send(const QUrl& address);
    void read(const std::function<ImageHelper::Picture()>& read);
    void settle();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
