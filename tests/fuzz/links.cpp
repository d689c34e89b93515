// The list of links, and the tree that the menu shows.
#include "fuzz.h"
#include "links/store/link_rec.h"
#include "links/store/links_data.h"

void Try(Ground& ground) {
    Global_LinkArray.clear();
    if (Load_Links_File(ground.file) != TableLoad::Loaded) {
        return;
    }
    Load_Global_LinksArray();
    Must(Save_Links_File(ground.file));
    const std::string saved = ground.Bytes();
    Must(Load_Links_File(ground.file) == TableLoad::Loaded && Save_Links_File(ground.file));
    Must(ground.Bytes() == saved);
}
