// SPDX-License-Identifier: MIT
// Writes the clips of the review client's sample into a folder.

#include "clipwriter.h"
#include "data/sampleclips.h"
#include "scene.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Review;
using namespace Qt::StringLiterals;

namespace {

constexpr int framesPerSecond = 8;

std::optional<Scene::Visitor> visitorAt(qint64 msecs)
{
    const qint64 since = msecs - SampleClips::quiet;
    if (since < 0)
        return {};
    return Scene::Visitor{SampleClips::visitors[since / SampleClips::visit],
                          double(since % SampleClips::visit) / SampleClips::visit};
}

/// Returns what went wrong, or nothing.
QString writeClip(int camera, bool atNight, const QString& path)
{
    const Scene scene(camera, atNight);
    ClipWriter writer(path, Scene::size,
                      {.framesPerSecond = framesPerSecond, .keyFrameDistance = 40});
    for (int i = 0; i < SampleClips::length * framesPerSecond / 1'000; ++i) {
        const qint64 msecs = i * qint64(1'000) / framesPerSecond;
        writer.add(scene.draw(double(msecs) / 1'000, visitorAt(msecs)));
    }
    writer.finish();
    return writer.fault();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: corvel-sample-clips FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    for (int camera = 1; camera <= SampleClips::cameras; ++camera) {
        for (const bool atNight : {false, true}) {
            const QString path = folder.filePath(SampleClips::fileName(camera, atNight));
            if (const QString fault = writeClip(camera, atNight, path); !fault.isEmpty()) {
                std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(fault));
                return 1;
            }
        }
    }
    return 0;
}
