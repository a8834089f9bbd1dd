#include "game_plugin/gui/ScenarioBasicGui.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "Rocket/Core.h"
#include "em5/base/Jobs.h"

namespace script {

namespace {

using Rocket::Core::Element;

constexpr const char* SHOWN = "display:inline-block;";
constexpr const char* HIDDEN = "display:none;";

ScenarioBasicGui* theGui = nullptr;

void setStyle(Element& element, const std::string& style) { element.SetAttribute("style", style); }

}

ScenarioBasicGui::ScenarioBasicGui(qsf::GuiContext& context) : GuiDocument(context) {
  if (loadByFilename(FILE_NAME)) hideChildren();
}

ScenarioBasicGui::~ScenarioBasicGui() {
  mJobProxy.unregister();
  if (theGui == this) theGui = nullptr;
}

ScenarioBasicGui* ScenarioBasicGui::get() { return theGui; }

void ScenarioBasicGui::create(qsf::GuiContext& context) {
  logInfo("scenario basic gui start1");
  if (theGui) return;
  logInfo("scenario basic gui start 2");
  theGui = new ScenarioBasicGui(context);
}

void ScenarioBasicGui::destroy() { delete std::exchange(theGui, nullptr); }

void ScenarioBasicGui::hideChildren() {
  Element* document = getElementDocument();
  for (int i = 0; document && i < document->GetNumChildren(); ++i)
    setStyle(*document->GetChild(i), HIDDEN);
}

void ScenarioBasicGui::ShowText(const std::string& elementId, const std::string& message, float fadeTime,
                                float totalTime, const std::string& style, int effect, const std::string& trigger) {
  Element* element = findElementById(elementId);
  if (!element) {
    logInfo("ScenarioBasicGui::ShowText cant find the Element with the id: " + elementId);
    return;
  }
  auto record = std::make_unique<ShowTextRecord>();
  record->elementId = elementId;
  record->fadeTime = fadeTime;
  record->totalTime = totalTime;
  record->startTime = mTextClock;
  record->trigger = trigger;
  record->fadeMode = effect == 0;
  record->message = message;
  std::erase_if(mTexts, [&](const auto& running) { return running->elementId == elementId; });
  mTexts.push_back(std::move(record));

  if (!isVisible()) setVisible(true);
  if (effect == 0) {
    element->SetInnerRML(message);
    setStyle(*element, "opacity: 0;");
  } else {
    setStyle(*element, "opacity: 1;");
    element->SetInnerRML("");
  }
  setStyle(*element, style);
  setStyle(*element, SHOWN);
  if (mJobProxy.isRegistered()) return; // anew it would lose a frame, for all texts
  mJobProxy.registerAt(em5::Jobs::SIMULATION_LOGIC, [this](const qsf::JobArguments& arguments) { update(arguments); });
}

void ScenarioBasicGui::update(const qsf::JobArguments& arguments) {
  if (mTexts.empty()) {
    mJobProxy.unregister();
    return;
  }
  mTextClock += arguments.getTimePassed();
  std::erase_if(mTexts, [this](const auto& text) { return !text->update(*this, mTextClock); });
}

void ScenarioBasicGui::ShowLetterBox(bool enable) {
  if (!isVisible() && enable) setVisible(true);
  logInfo(std::string("Letterboxes ") + (enable ? "1" : "0"));
  Element* boxes[2] = {};
  const char* ids[] = {"LetterBoxUp", "LetterBoxDown"};
  for (int i = 0; i < 2; ++i) {
    boxes[i] = findElementById(ids[i]);
    if (boxes[i]) continue;
    logInfo(std::string("ScenarioBasicGui::ShowLetterBox cant find the Element with the id: ") + ids[i]);
    return;
  }
  for (Element* box : boxes)
    setStyle(*box, enable ? SHOWN : HIDDEN);
}

void ScenarioBasicGui::ShowSubtitle(bool enable, const std::string& text, const std::string& textStyle,
                                    const std::string& pictureSource, const std::string& pictureStyle) {
  // Kept: the messages name the letterboxes.
  constexpr const char* MISSING = "ScenarioBasicGui::ShowLetterBox cant find the Element with the id: ";
  Element* subtitle = findElementById("subtitle_text");
  if (!subtitle) return logInfo(std::string(MISSING) + "subtitle_text");
  Element* picture = findElementById("subtitle_picture");
  if (!picture) return logInfo(std::string(MISSING) + "subtitle_picture");
  if (!enable) {
    setStyle(*subtitle, HIDDEN);
    setStyle(*picture, HIDDEN);
    return;
  }
  setStyle(*subtitle, textStyle);
  subtitle->SetInnerRML(text);
  setStyle(*subtitle, SHOWN);
  if (pictureSource.empty()) return setStyle(*picture, HIDDEN);
  picture->SetAttribute("src", pictureSource);
  setStyle(*picture, pictureStyle);
  setStyle(*picture, SHOWN);
}

void ScenarioBasicGui::ShowChoiceDialogue(const std::string& headline, const std::string& text,
                                          const std::string& button1Name, const std::string& trigger1,
                                          const std::string& button2Name, const std::string& trigger2) {
  mTrigger1 = trigger1;
  mTrigger2 = trigger2;
  if (!mHandler) return;
  show();
  for (const char* id : {"bg35", "header"})
    if (Element* element = findElementById(id)) setStyle(*element, SHOWN);
  const std::pair<const char*, const std::string*> texts[] = {
      {"headertext", &headline}, {"choice_text", &text}, {"id1", &button1Name}, {"id2", &button2Name}};
  for (const auto& [id, argument] : texts) {
    Element* element = findElementById(id);
    if (!element) continue;
    element->SetInnerRML(mHandler->ResolveString(*argument));
    setStyle(*element, SHOWN);
  }
}

void ScenarioBasicGui::processEvent(const std::string& name, Rocket::Core::Event& event) {
  logInfo(event.GetType() + " " + name);
  if (name == "event1") {
    logInfo("Button1 was pressed");
    closeDialogue(mTrigger1);
  } else if (name == "event2") {
    logInfo("Button2 was pressed");
    closeDialogue(mTrigger2);
  } else if (name == "clickEventWindow") {
    logInfo("Map wird geladen");
  }
}

void ScenarioBasicGui::closeDialogue(const std::string& trigger) {
  if (mHandler)
    mHandler->SetTriggerActive(trigger, true);
  else if (mHandlerEnded)
    logInfo("Activate Trigger Effect was not able to find the trigger" + trigger);
  for (const char* id : {"bg35", "header", "headertext", "choice_text", "id1", "id2"})
    if (Element* element = findElementById(id)) setStyle(*element, HIDDEN);
}

void ScenarioBasicGui::forgetHandler(const ScenarioHandler* handler) {
  if (mHandler != handler) return;
  mHandler = nullptr;
  mHandlerEnded = true;
}

}
