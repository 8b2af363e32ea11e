#!/usr/bin/env python3
# Usage: prompt.py PROGRAM COMPONENT
# Types at prompts as a user does, each at a terminal of its own, and waits for what is to be seen.
import os, pty, select, sys, tempfile, termios, time

program, component = sys.argv[1:]
state = tempfile.TemporaryDirectory()
history = os.path.join(state.name, "zilvo/history")
UP, CTRL_C, CTRL_D, CTRL_R = "\x1b[A", "\x03", "\x04", "\x12"


class Prompt:
    def __init__(self, folder=state.name, first="> "):
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.environ.update(TERM="xterm", XDG_STATE_HOME=folder)
            os.execv(program, [program, "--component", component, "repl"])
        self.type("", first)

    def type(self, text, *seen):
        """Everything of `seen` appears behind what was typed, in that order."""
        os.write(self.terminal, text.encode())
        output = ""
        for wanted in seen:
            while wanted not in output:
                if not select.select([self.terminal], [], [], 30)[0]:
                    sys.exit(f"{text!r} did not show {wanted!r} but {output!r}")
                output += os.read(self.terminal, 4096).decode(errors="replace")
            output = output.split(wanted, 1)[1]
        # A prompt is there a moment before keys are read as keys.
        while seen[-1].endswith("> ") and termios.tcgetattr(self.terminal)[3] & termios.ICANON:
            time.sleep(0.001)

    def end(self):
        os.write(self.terminal, CTRL_D.encode())
        status = os.waitpid(self.process, 0)[1]
        if status != 0:
            sys.exit(f"the prompt ended with {status}")


one, two = Prompt(), Prompt()
for text, *seen in [
    ["'\u00e4x\b'\r", '\r\n"\u00e4"\r\n> '],
    # A statement goes on until it is whole, or dropped; so is a line.
    ["if true then\r", "\r\n>> "], ["print(40 + 2) end\r", "\r\n42\r\n> "],
    ["if\r", "\r\n>> "], [CTRL_C, "\r\n> "], ["nonsense", "nonsense"], [CTRL_C, "\r\n> "],
    # Completed: classes, members, methods, widgets, events, globals, keywords; nothing is called for it.
    ['c = zilvo.create("ssOK\t)\r', 'Cancel")', "\r\n> "],
    ["c.\t", "OKEnabled", "> c."], ["OKEn\t\r", "abled", "\r\nfalse\r\n> "],
    ["c:wid\t'cmdO\t)\r", "get(", "K'", "CommandButton cmdOK\r\n> "],
    ["c.surface.Wid\t\r", "th", "\r\n1455.0\r\n> "], ["c:widget('cmdOK').Capt\t\r", "ion", '\r\n"&OK"\r\n> '],
    ['c:on("OK\t, print) c:\t', 'WasClicked", print) c:', "keydown", "> c:on"], [CTRL_C, "\r\n> "],
    ["zilvo.al\t\r", "ive", "\r\n1\r\n> "], ["BJElev\t\r", "enDecks", "\r\n11\r\n> "], ["functi\t", "on"], [CTRL_C, "\r\n> "],
    ["p = zilvo.create('paneledGOButton')\r", "\r\n> "],
    ["p:widget('GOButton'):widget('labelGO', 0):cl\t", "ick("], [CTRL_C, "\r\n> "],
    ["t = setmetatable({}, {__index = function() print('called') end})\r", "\r\n> "],
    ["t.a.b\t = 1\r", "\a", " = 1\r\ncalled\r\n", "\r\n> "],
    # What runs is interrupted, in whatever it hides; the prompt and what it knows stay.
    ["print('be' .. 'gun') while true do end\r", "begun\r\n"], [CTRL_C, "interrupted\r\n> "],
    ["c:on('CancelWasClicked', function() print('be' .. 'gun') while true do pcall(function() repeat until nil end) end end)"
     " coroutine.wrap(function() c:key(27) end)()\r", "begun\r\n"], [CTRL_C, "interrupted\r\n> "],
    ["while true do print('more') end\r", "more\r\nmore\r\n"], [CTRL_C, "interrupted\r\n> "],
    ["c\r", "\r\ncontrol ssOKCancel\r\n> "],
    # Recalled.
    [UP + UP + "\x15'two'\r", "\r\n\"two\"\r\n> "], [UP + "\r", "\r\n\"two\"\r\n> "], [CTRL_R + "40 +" + "\r", "print(40 + 2) end", "<eof>"],
]:
    one.type(text, *seen)
two.type("'of the other'\r", "\r\n\"of the other\"\r\n> ")
one.end()
two.end()
lines = open(history, encoding="utf-8").read().splitlines()
if lines[0] != "'\u00e4'" or lines[-1] != "'of the other'" or "nonsense" in lines or lines.count("'two'") != 1:
    sys.exit(f"the history is {lines}")
three = Prompt()
three.type(UP + "\r", "\r\n\"of the other\"\r\n> ")
three.end()

# Without a place for it there is no history, but a prompt.
four = Prompt("/dev/null", "no history is kept: ")
four.type("6 * 7\r", "\r\n42\r\n> ")
four.end()
