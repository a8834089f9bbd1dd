#include "game_plugin/gui/ScenarioBasicGui.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ShowSubtitleEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The window that holds the subtitle stays hidden unless ShowLetterBoxes, ShowText or ShowChoiceDialogue has "
      "shown "
      "it.",
  };

  bool enable = false;
  Argument text;
  Argument textStyle;
  Argument pictureSource;
  Argument pictureStyle;
};

static void read(ShowSubtitleEffect& effect, ParameterReader& in) {
  effect.enable = in.flag(1, false, "Enable", "true-> the subtitle comes up\nfalse-> it goes");
  effect.text = in.text(2, "ERROR TEXT", "Text", "The text, which may hold RML");
  effect.textStyle = in.text(3, "", "Text Style", "Style of the text, as in \"color: #ffffff;\"");
  effect.pictureSource =
      in.of(ParameterRole::PICTURE, 4, "", "Picture Source", "Picture beside the text; empty for none");
  effect.pictureStyle = in.text(5, "", "Picture Style", "Style of the picture, as in \"width: 100px;\"");
}

static void run(const ShowSubtitleEffect& effect, ScenarioHandler& handler) {
  ScenarioBasicGui* gui = ScenarioBasicGui::get();
  if (!gui) return;
  const std::string text = handler.ResolveString(effect.text);
  const std::string textStyle = handler.ResolveString(effect.textStyle);
  const std::string pictureSource = handler.ResolveString(effect.pictureSource);
  const std::string pictureStyle = handler.ResolveString(effect.pictureStyle);
  gui->ShowSubtitle(effect.enable, text, textStyle, pictureSource, pictureStyle);
}

EFFECT(ShowSubtitle, "GUI", "Shows or hides a subtitle with a picture. Use it together with ShowLetterBoxes")

}
