#pragma once

#include "reports/Feed.h"

namespace plandesk {

extern const Feed feedParticulars;
extern const Feed feedPayment;
extern const Feed feedHeader;
extern const Feed feedChecklist;
extern const Feed feedSupervision;
extern const Feed feedCommencement;
extern const Feed feedPlinthCompletion;
extern const Feed feedBuildingCompletion;
extern const Feed feedPartOccupancy;
extern const Feed feedTDROwnership;
extern const Feed feedDiscretionNewCase;
extern const Feed feedDiscretionRevCase;

}  // namespace plandesk
