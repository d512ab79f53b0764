# Fails, with a line that says why, where what a test program printed shows that it did not run to
# its end: Wine tells of a crash, or a GoogleTest run lacks its closing line.
#
# The exit code does not tell: a program that crashes under Wine is ended by itself or by Wine's
# debugger, whichever comes first, and the debugger ends it with 0.

/wine: Unhandled .*, starting debugger/ { crashed++ }
/\[==========\] Running [0-9]+ tests? from / { opened++ }
/\[==========\] [0-9]+ tests? from .* ran\. / { closed++ }

END {
  if (!crashed && closed >= opened) exit 0
  print "whole_run: " (crashed ? "the program crashed" : "the tests ended without their closing line")
  exit 1
}
