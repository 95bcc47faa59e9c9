// SPDX-License-Identifier: MIT
#pragma once

namespace Review {

/// How a found range is shown.
struct ResultLook
{
    bool markBegin = true;
    bool markEnd = true;
    bool onlyInside = false;
    bool zoom = true;
};

} // namespace Review
