// SPDX-License-Identifier: MIT
// Writes the clips of the tests, in the forms that cameras record in, into a folder.

#include "numberedclip.h"

#include <cstdio>

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: corvel-test-clips FOLDER\n", stderr);
        return 2;
    }
    const std::tuple<const char*, const char*, int, int> clips[] = {
        {"h264.avi", "libx264", 2, 0}, {"h264.mp4", "libx264", 2, 0}, {"h264.ts", "libx264", 2, 0},
        {"hevc.mkv", "libx265", 3, 0}, {"mjpeg.avi", "mjpeg", 0, 4},  {"mjpeg.mp4", "mjpeg", 0, 4},
        {"mpeg4.mp4", "mpeg4", 0, 4}};
    for (const auto& [name, encoder, bFrames, quantizer] : clips) {
        const QString path = QString::fromLocal8Bit(argv[1]) + u'/' + QLatin1StringView(name);
        const QString fault =
            NumberedClip::write(path, NumberedClip::usualCount,
                                {.encoder = encoder, .bFrames = bFrames, .quantizer = quantizer});
        if (!fault.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(fault));
            return 1;
        }
    }
    return 0;
}
