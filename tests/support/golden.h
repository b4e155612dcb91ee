// Texts that are kept in tests/golden, a file of sections for each family of tests. Tests that run
// with VQK_WRITE_GOLDEN in their environment write what they should have compared.
#pragma once

#include <string>

#include "core/tmxd_obj.h"

namespace mxd::test {

void expect_golden(const std::string& family, const std::string& section, const std::string& text);

// The object's class id and both outputs.
void expect_golden(const std::string& family, const std::string& section, const Tmxd_obj& object);

}  // namespace mxd::test
