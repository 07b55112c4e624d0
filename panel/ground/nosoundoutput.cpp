// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "soundoutput.h"

namespace Panel
{

std::unique_ptr<SoundOutput> makeSoundOutput()
{
    return nullptr;
}

} // namespace Panel
