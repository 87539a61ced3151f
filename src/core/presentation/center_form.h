#ifndef VENDLINGUA_CORE_PRESENTATION_CENTER_FORM_H_
#define VENDLINGUA_CORE_PRESENTATION_CENTER_FORM_H_

namespace vendlingua {

/// A size and a place of a window, in twips.
struct FormSize {
  int width;
  int height;
};

struct FormPlace {
  int left;
  int top;
};

/// Where the information window of size `own` goes, relative to a window of size `given`; it places
/// itself with its own size.
constexpr FormPlace CenterForm1(FormSize own, FormSize given) {
  return {own.width / 2 - given.width / 2 + 4500,
          static_cast<int>(own.height * 0.85 / 2 - given.height / 2.0 + 3500)};
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_CENTER_FORM_H_
