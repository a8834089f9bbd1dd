#pragma once
#include "game_plugin/gui/ShowTextRecord.h"
#include "game_plugin/scenario/messages/HandlerWatch.h"
#include "game_plugin/scenario/world/GuiDocuments.h"

#include "Rocket/Core/EventListener.h"
#include "qsf/gui/GuiDocument.h"
#include "qsf/job/JobProxy.h"

#include <memory>
#include <string>
#include <vector>

namespace script {

/// The document that is always there for scripts: texts that fade or type themselves, letterboxes, subtitles with a
/// picture, and a dialogue with two buttons. One lives while scripts of a map run, in a game with a GUI;
/// MapScriptManager has it made and destroyed. Elements that its file lacks are logged or passed over.
class ScenarioBasicGui : public qsf::GuiDocument, public Rocket::Core::EventListener, public HandlerWatch {
public:
  static constexpr const char* FILE_NAME = "em5/gui/ingamehud/basic_mapscript_gui.rml";

  explicit ScenarioBasicGui(qsf::GuiContext& context);
  ~ScenarioBasicGui() override;

  /// The living one, or null.
  static ScenarioBasicGui* get();
  /// Makes the one, unless it lives.
  static void create(qsf::GuiContext& context);
  static void destroy();

  /// Shows a text in an element, in the place of one that runs there. Times are seconds of simulation. With the effect
  /// 0 it fades in and out, each within the fade time; with any other it is typed within the fade time. It is gone when
  /// the total time is over. Nothing is done with the trigger.
  void ShowText(const std::string& elementId, const std::string& message, float fadeTime, float totalTime,
                const std::string& style, int effect, const std::string& trigger);
  void ShowLetterBox(bool enable);
  /// An empty picture source hides the picture. The document stays as visible as it was.
  void ShowSubtitle(bool enable, const std::string& text, const std::string& textStyle,
                    const std::string& pictureSource, const std::string& pictureStyle);
  /// Whose triggers the buttons of the dialogue activate, and who resolves its texts.
  void setHandler(ScenarioHandler* handler) { mHandler = handler; }
  /// The texts are arguments of the handler; without one no dialogue comes up.
  void ShowChoiceDialogue(const std::string& headline, const std::string& text, const std::string& button1Name,
                          const std::string& trigger1, const std::string& button2Name, const std::string& trigger2);

  void processEvent(const std::string& name, Rocket::Core::Event& event) override;
  /// No element has it as listener: clicks come through the document.
  void ProcessEvent(Rocket::Core::Event&) override {}
  void forgetHandler(const ScenarioHandler* handler) override;

private:
  void hideChildren();
  void update(const qsf::JobArguments& arguments);
  void closeDialogue(const std::string& trigger);

  NamedDocument mName{"basic", *this};
  ScenarioHandler* mHandler = nullptr; ///< of the last dialogue
  bool mHandlerEnded = false;          ///< the script of the last dialogue runs no more
  qsf::JobProxy mJobProxy;
  qsf::Time mTextClock; ///< stands still while no text runs
  std::vector<std::unique_ptr<ShowTextRecord>> mTexts;
  std::string mTrigger1;
  std::string mTrigger2;
};

}
