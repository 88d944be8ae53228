#include "Files.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

std::string readFile(const std::string& path)
{
    std::string content;
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return content;
    char buffer[4096];
    ssize_t count;
    while ((count = read(file, buffer, sizeof buffer)) > 0)
        content.append(buffer, std::size_t(count));
    close(file);
    return content;
}

std::vector<std::string> entriesOf(const std::string& folder)
{
    std::vector<std::string> names;
    if (DIR* directory = opendir(folder.c_str())) {
        while (const dirent* entry = readdir(directory)) {
            if (entry->d_name[0] != '.')
                names.emplace_back(entry->d_name);
        }
        closedir(directory);
    }
    std::sort(names.begin(), names.end());
    return names;
}
