// SPDX-License-Identifier: MIT
#pragma once

#include "reviewdata.h"

#include <QCoreApplication>

namespace Review {

/// The sample that is shown when no file is given: two weeks of four cameras, from 2 to 16 March
/// 2026 (UTC). It is computed, and is the same at every call and on every platform. Its recordings
/// are all made of a few clips, which are installed with the program.
class SampleData
{
    Q_DECLARE_TR_FUNCTIONS(Review::SampleData)

public:
    static ReviewData make();
};

} // namespace Review
