#pragma once
// The remembered URLs of the link dialogs (section "Favorite URLs", URL1 newest) and the
// browser's favourites as .url files.

#include <array>
#include <string>

namespace tessarine {

class Application;
class SettingsStore;

using FavoriteUrlSlots = std::array<std::string, 21>;  // slot 0 is never used

bool IsFavoriteUrl(const SettingsStore& store, const std::string& url);
// Moves URL1..URL14 down one place and writes `url` to URL1. Slots 16 to 20 never move.
void AddFavoriteUrl(SettingsStore& store, const std::string& url);
// Copies each stored URL that is not empty into its slot; the others keep their text.
void LoadFavoriteUrls(const SettingsStore& store, FavoriteUrlSlots& slots);
void LoadFavoriteUrls(Application& app);
void RememberUrl(Application& app, const std::string& url);

// The URL of a favourite file: the text after its first 24 characters up to the line end.
// A file that is shorter, or can't be read, gives the empty text.
std::string ReadFavoriteFile(const std::string& path);
// Lets the user choose a favourite file; its URL, or "".
std::string BrowseFavorites(Application& app);

}  // namespace tessarine
