#include "QKXEntryBase.h"

QKXEntryBase::~QKXEntryBase() = default;
