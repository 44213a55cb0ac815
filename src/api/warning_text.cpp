// SPDX-License-Identifier: MIT
#include "api/warning_text.h"

#include <cstdint>
#include <iterator>

#include "ZTKFunc.h"
#include "api/install_location.h"
#include "platform/bundle.h"
#include "platform/property_list.h"
#include "platform/text.h"
#include "store/file_outcome.h"
#include "usb/mixers.h"

using namespace ztk;
using namespace ztk::warning_text;

namespace {

namespace plist = platform::property_list;
namespace bundle = platform::bundle;
using platform::text::OwnedText;

const ZTKTextRef kTablePath = ZTK_TEXT("%@/%@.lproj/Localizable.strings");

constexpr std::uint16_t kPortInfoLength = 2;  // bytes
constexpr std::uint8_t kOtherPort = 1;

// Returns whether the port information of the first mixer has the value
// kOtherPort. Returns false if the mixer does not answer.
bool IsOnOtherPort() {
  usb::Reply reply;
  usb::ReadFromMixer(0, usb::kPortInfoRegister, &reply, kPortInfoLength);
  // Low byte first.
  return reply.bytes[0] == kOtherPort && reply.bytes[1] == 0;
}

ZTKTextRef TextOfLanguage(const bundle::Bundle *library, std::uint32_t language,
                          ZTKTextRef key) {
  const OwnedText resources(bundle::ResourcePath(library));
  if (resources.get() == nullptr) return nullptr;
  const OwnedText path(platform::text::Format(kTablePath, resources.get(),
                                              kLanguages[language]));
  plist::Dictionary *table = nullptr;
  store::RecordReading(plist::Read(path.get(), &table));
  if (table == nullptr) return nullptr;
  const ZTKTextRef text = plist::TextValue(table, key);
  plist::Release(table);
  return text;
}

}  // namespace

ZTKResult ZTK_GetWarningTextForSetUSBAudioInput(uint32_t productId,
                                                uint32_t channel,
                                                uint32_t resultCode,
                                                uint32_t language,
                                                ZTKTextRef *outText) {
  outcome::Begin();
  if (!kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;
  if (resultCode != ZTK_WARNING) return ZTK_REJECTED;

  // Deliberate: a mixer that is counted but cannot be opened counts as
  // attached.
  ZTKTextRef key = kNoMixer;
  if (usb::CountMixers(productId) != 0) {
    key = IsOnOtherPort() ? kSelectorOtherPort : kSelector;
  }
  // Deliberate: the language is tested only after the request to the mixer.
  const bool byPreference = language == kUsersLanguage;
  if (!byPreference && language >= std::size(kLanguages)) return ZTK_REJECTED;

  bundle::Bundle *library =
      bundle::AtPath(IsInstalledInLibrary() ? kNewBundle : kOldBundle);
  // Deliberate: without a mixer the text is in the language of the user.
  *outText = byPreference || key == kNoMixer
                 ? bundle::LocalizedText(library, key, kTable)
                 : TextOfLanguage(library, language, key);
  bundle::Release(library);
  return ZTK_SUCCESS;
}
