// How numbers, comparisons and elements are written in scripts and messages.
#include "host/scenario_text.h"

#include <cmath>
#include <cstdio>

namespace kestrane::host {

namespace script_text {

std::string fmt(double v) {
    char buf[64];
    if (v == std::trunc(v) && std::fabs(v) < 1e15)
        std::snprintf(buf, sizeof buf, "%.0f", v);
    else
        std::snprintf(buf, sizeof buf, "%.10g", v);
    return buf;
}

const char* op_text(CmpOp op) {
    switch (op) {
        case CmpOp::Eq:
            return "==";
        case CmpOp::Ne:
            return "!=";
        case CmpOp::Lt:
            return "<";
        case CmpOp::Le:
            return "<=";
        case CmpOp::Gt:
            return ">";
        case CmpOp::Ge:
            return ">=";
        case CmpOp::Near:
            return "~=";
    }
    return "?";
}

bool compare(double a, CmpOp op, double b, double tol) {
    switch (op) {
        case CmpOp::Eq:
            return a == b;
        case CmpOp::Ne:
            return a != b;
        case CmpOp::Lt:
            return a < b;
        case CmpOp::Le:
            return a <= b;
        case CmpOp::Gt:
            return a > b;
        case CmpOp::Ge:
            return a >= b;
        case CmpOp::Near:
            return std::fabs(a - b) <= tol;
    }
    return false;
}

// Reads the words of one line, throwing nothing: each getter records the
// first fault and later calls return neutral values.
std::string element_text(int n, int branch) {
    char buf[32];
    if (branch > 0)
        std::snprintf(buf, sizeof buf, "e%d.%d", n, branch);
    else
        std::snprintf(buf, sizeof buf, "e%d", n);
    return buf;
}

// An element of gauge `g`: N along the chain, or N.K for the K-th branch of eN.
}  // namespace script_text

}  // namespace kestrane::host
