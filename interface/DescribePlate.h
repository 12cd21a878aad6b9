#pragma once

#include "interface/DataMembers.h"
#include "interface/DefinitionMembers.h"
#include "interface/EventMembers.h"
#include "interface/GeometryMembers.h"
#include "interface/WellMembers.h"

namespace zorvane {

/// Calls a visitor with every member and every event of the control's interface, each once, group
/// by group, with the rows of Member.h. A visitor that needs no types finds the same in
/// MemberList.h.
template <class Visitor>
void DescribePlate(Visitor& visitor) {
    DescribeLoading(visitor);
    DescribeGeometry(visitor);
    DescribeCurrentWell(visitor);
    DescribeSelection(visitor);
    DescribeBlocks(visitor);
    DescribeWellData(visitor);
    DescribeAppearance(visitor);
    DescribePanel(visitor);
    DescribeEditing(visitor);
    DescribeEvents(visitor);
}

} // namespace zorvane
