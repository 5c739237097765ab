"""Prints what whoever asks the accessibility bus for these events, its arguments, gets to hear of messages: a line for each,
"announcement" or "notification" and the text.
"""

import sys

from accessibility import Atspi


def hear(event):
    if event.type.startswith("object:announcement"):
        print("announcement", event.any_data, flush=True)
    elif event.type.startswith("object:state-changed:showing") and event.source.get_role_name() == "notification":
        print("notification", event.source.get_child_at_index(0).get_name(), flush=True)


listener = Atspi.EventListener.new(hear)
for event in sys.argv[1:]:
    listener.register(event)
print("listening", flush=True)
Atspi.event_main()
