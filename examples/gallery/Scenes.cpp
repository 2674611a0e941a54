#include "examples/gallery/SceneParts.h"

#include <iterator>

namespace quillgrid::example {

const std::vector<Scene>& AllScenes() {
    static const std::vector<Scene> scenes = [] {
        std::vector<Scene> all;
        for (const auto& part : {TemplateScenes, OrderScenes, FrameScenes, StateScenes, ButtonScenes,
                                 LanguageScenes, CalendarScenes, PadScenes}) {
            auto more = part();
            std::move(more.begin(), more.end(), std::back_inserter(all));
        }
        return all;
    }();
    return scenes;
}

} // namespace quillgrid::example
