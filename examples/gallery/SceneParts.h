#pragma once

#include "examples/gallery/Scene.h"

namespace quillgrid::example {

// The sections of the page.
std::vector<Scene> TemplateScenes();
std::vector<Scene> OrderScenes();
std::vector<Scene> FrameScenes();
std::vector<Scene> StateScenes();
std::vector<Scene> ButtonScenes();
std::vector<Scene> LanguageScenes();
std::vector<Scene> CalendarScenes();
std::vector<Scene> PadScenes();

/// The same picture in other surroundings, under another name.
Scene InDark(Scene scene, const QString& name, const QString& text);
/// With some of its forms only, by their places from 0.
Scene Only(Scene scene, std::initializer_list<std::size_t> places);
Scene InDouble(Scene scene, const QString& name, const QString& text);

} // namespace quillgrid::example
