"""For the screen reader, which loads it: each time that it falls silent is written into the transcript. Speech Dispatcher
would keep from the voice what comes when that has ended its text, as one in haste has.
"""

import os

import speechd

import transcript

cancel = speechd.SSIPClient.cancel


def cancel_and_tell(self, *arguments):
    transcript.write(os.environ["KELVORA_TRANSCRIPT"], "STOP")
    return cancel(self, *arguments)


speechd.SSIPClient.cancel = cancel_and_tell
