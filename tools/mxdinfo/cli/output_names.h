// Names of files in a folder, one for each input.
#pragma once

#include <string>
#include <vector>

namespace mxdinfo {

// The inputs' paths below the folder, with the ending: "sub/plan.mxd" becomes "sub/plan.mxd.xml".
// Roots and ".." are left out. Each name is there once; case does not make a difference.
std::vector<std::string> output_names(const std::vector<std::string>& inputs,
                                      const std::string& folder, const std::string& ending);

// Makes the folders that the path of a file needs. False if one cannot be made.
bool make_folders_for(const std::string& path);

}  // namespace mxdinfo
