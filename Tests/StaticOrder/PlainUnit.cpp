// SPDX-License-Identifier: MIT
// An application's unit that knows nothing of the dialog manager: it includes none of its headers, but its
// static object is the first to use a function static of another unit.

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
