#pragma once

// The sale's customer is read by the data layer's customer query; the sales layer names it
// from here.
#include "data/repositories/SaleCustomer.h"
