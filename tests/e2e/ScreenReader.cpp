#include <atspi/atspi.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Sees a program as assistive technology does:
//
//     screen_reader PID                         what is in its windows, a line for each object
//     screen_reader PID press ROLE NAME         the same as a click on it
//     screen_reader PID set ROLE NAME VALUE     of a slider
//     screen_reader PID listen                  what the program announces, until it is ended

namespace {

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
  void operator()(GArray* array) const { g_array_unref(array); }
  void operator()(char* text) const { g_free(text); }
  void operator()(AtspiRect* rect) const { g_free(rect); }
};
template <typename T>
using Owned = std::unique_ptr<T, Unref>;

std::string taken(char* text) {
  const Owned<char> owned(text);
  std::string line = text ? text : "";
  for (char& letter : line)
    if (letter == '\n' || letter == '\t') letter = ' ';
  return line;
}

struct Place {
  Owned<AtspiAccessible> object;
  std::string within;  // the names of what it lies in, the window's first

  std::string role() const { return taken(atspi_accessible_get_role_name(object.get(), nullptr)); }
  std::string name() const { return taken(atspi_accessible_get_name(object.get(), nullptr)); }
  std::string states() const;
};

std::string Place::states() const {
  const Owned<AtspiStateSet> set(atspi_accessible_get_state_set(object.get()));
  const Owned<GArray> values(atspi_state_set_get_states(set.get()));
  auto* const kind = static_cast<GEnumClass*>(g_type_class_ref(atspi_state_type_get_type()));
  std::string names;
  for (guint i = 0; i < values->len; ++i)
    names += std::string(" ") +
             g_enum_get_value(kind, g_array_index(values.get(), AtspiStateType, i))->value_nick;
  g_type_class_unref(kind);
  return names + ' ';
}

void collect(const Place& parent, std::vector<Place>& places) {
  const std::string within = parent.within + parent.name() + "/";
  const int count = atspi_accessible_get_child_count(parent.object.get(), nullptr);
  for (int i = 0; i < count; ++i) {
    Place child{Owned<AtspiAccessible>(
                    atspi_accessible_get_child_at_index(parent.object.get(), i, nullptr)),
                within};
    if (!child.object) continue;  // gone since
    collect(child, places);
    places.push_back(std::move(child));
  }
}

std::vector<Place> placesOf(guint processId) {
  std::vector<Place> places;
  const Owned<AtspiAccessible> desktop(atspi_get_desktop(0));
  const int count = atspi_accessible_get_child_count(desktop.get(), nullptr);
  for (int i = 0; i < count; ++i) {
    AtspiAccessible* const child = atspi_accessible_get_child_at_index(desktop.get(), i, nullptr);
    const Place program{Owned<AtspiAccessible>(child), {}};
    if (child && atspi_accessible_get_process_id(child, nullptr) == processId)
      collect(program, places);
  }
  return places;
}

void print(const Place& place) {
  AtspiAccessible* const object = place.object.get();
  const std::string description = taken(atspi_accessible_get_description(object, nullptr));
  std::printf("%s\t%s\t%s\t%s\t%s\t", place.within.c_str(), place.role().c_str(),
              place.name().c_str(), description.c_str(), place.states().c_str());
  if (const Owned<AtspiComponent> component{atspi_accessible_get_component_iface(object)}) {
    const Owned<AtspiRect> rect(
        atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr));
    if (rect) std::printf("%d %d %d %d", rect->x, rect->y, rect->width, rect->height);
  }
  std::putchar('\t');
  if (const Owned<AtspiValue> value{atspi_accessible_get_value_iface(object)})
    std::printf("%g of %g", atspi_value_get_current_value(value.get(), nullptr),
                atspi_value_get_maximum_value(value.get(), nullptr));
  std::putchar('\t');
  if (const Owned<AtspiAction> action{atspi_accessible_get_action_iface(object)})
    for (int i = 0; i < atspi_action_get_n_actions(action.get(), nullptr); ++i)
      std::printf("%s ", taken(atspi_action_get_action_name(action.get(), i, nullptr)).c_str());
  std::putchar('\n');
}

AtspiAccessible* find(const std::vector<Place>& places, std::string_view role,
                      std::string_view name) {
  for (const Place& place : places)
    if (place.states().find(" showing ") != std::string::npos && place.role() == role &&
        place.name() == name)
      return place.object.get();
  return nullptr;
}

bool press(AtspiAccessible* object) {
  const Owned<AtspiAction> action(atspi_accessible_get_action_iface(object));
  for (int i = 0; action && i < atspi_action_get_n_actions(action.get(), nullptr); ++i)
    if (taken(atspi_action_get_action_name(action.get(), i, nullptr)) == "Press")
      return atspi_action_do_action(action.get(), i, nullptr);
  return false;
}

bool set(AtspiAccessible* object, double number) {
  const Owned<AtspiValue> value(atspi_accessible_get_value_iface(object));
  return value && atspi_value_set_current_value(value.get(), number, nullptr);
}

int listen() {
  const auto tell = [](AtspiEvent* event, void*) {
    if (G_VALUE_HOLDS_STRING(&event->any_data))
      std::printf("%s\n", g_value_get_string(&event->any_data));
    std::fflush(stdout);
  };
  const Owned<AtspiEventListener> listener(atspi_event_listener_new(tell, nullptr, nullptr));
  if (!atspi_event_listener_register(listener.get(), "object:announcement", nullptr)) return 1;
  std::puts("listening");
  std::fflush(stdout);
  atspi_event_main();
  return 0;
}

int run(guint processId, std::span<char*> words) {
  const std::string_view verb = words.empty() ? "" : words[0];
  if (verb == "listen") return listen();
  const std::vector<Place> places = placesOf(processId);
  for (const Place& place : places)
    if (words.empty()) print(place);
  if (words.size() < 3) return 0;
  AtspiAccessible* const object = find(places, words[1], words[2]);
  const bool done = object && (verb == "press" ? press(object) : set(object, std::atof(words[3])));
  if (done) std::puts("done");
  return !done;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || atspi_init() != 0) return 1;
  return run(static_cast<guint>(std::atoi(argv[1])), std::span(argv, argc).subspan(2));
}
