#pragma once

#include <functional>
#include <string>
#include <vector>

/// A dialog of the module with sample data, as pictures and checks over all dialogs open it.
struct GalleryEntry
{
    /// Lower case with underscores, part of file names.
    std::string name;
    /// Opens the dialog and returns when it has ended.
    std::function<void()> open;
    /// Ids of the buttons that are pressed, in this order, to bring it to what is to be seen.
    std::vector<int> presses{};
};

/// All dialogs of the module. `dataFolder` is the folder of the sample data.
std::vector<GalleryEntry> DialogGallery(const std::string& dataFolder);
