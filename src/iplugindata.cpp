#include "iplugindata.h"

// Defined out of line so that the interface has one home for its vtable.
IPlugInData::~IPlugInData() = default;
