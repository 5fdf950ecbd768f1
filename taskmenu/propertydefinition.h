#pragma once

#include <QtDesigner/private/shared_enums_p.h>

namespace qdesigner_internal {

// The item data role holding an item's flags (as an int) while it is edited.
enum ItemEditorRoles { ItemFlagsRole = ItemFlagsShadowRole };

// One row of the table by which an item editor declares its item properties; a row whose
// name is null ends the table. typeFunc, when set, names types registered at run time and
// takes the place of type.
struct PropertyDefinition
{
    int role;
    int type;
    int (*typeFunc)();
    const char *name;
};

} // namespace qdesigner_internal
