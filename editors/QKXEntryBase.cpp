// SPDX-License-Identifier: BSD-3-Clause
#include "QKXEntryBase.h"

QKXEntryBase::~QKXEntryBase() = default;
