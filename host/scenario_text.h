// Shared by the scenario parser and runner: how numbers, comparisons and
// elements are written in scripts and messages.
#pragma once

#include <string>

#include "host/scenario.h"

namespace kestrane::host::script_text {

// Whole numbers without a fraction, others with up to ten digits.
std::string fmt(double v);
const char* op_text(CmpOp op);
bool compare(double a, CmpOp op, double b, double tol);
// "e3", or "e0.2" for the second branch of e0.
std::string element_text(int n, int branch);

}  // namespace kestrane::host::script_text
