#pragma once

#include "platform/jet/workspace.h"

#include <string>

namespace store {

/// Where a workstation's link file lies: the folder of the sample file.
[[nodiscard]] std::string localFileBeside(const std::string& beispielPfad, std::string_view localName);

/// Repairs the link file, the source file and the shared file, in this order. What cannot be repaired, or is not there,
/// is passed over.
void repairFiles(const jet::Workspace& workspace, const std::string& localFile, const std::string& sourceFile,
                 const std::string& sharedFile);

} // namespace store
