// SPDX-License-Identifier: MIT
// A unit of an application that knows nothing of the dialog manager: it includes none of its headers, and its
// static object is the first to use what another unit keeps in a function.

void UseFunctionStatic();

namespace
{
class CFirstUse
{
public:
    CFirstUse() { UseFunctionStatic(); }
};

CFirstUse kFirstUse;
} // namespace
