#!/usr/bin/env python3
"""Lines of test code against lines of program code (non-blank, non-comment lines of the
C++ files under git: src/ and app/ against tests/)."""
import sys,subprocess,re
def code_lines(paths):
    n=0
    for p in paths:
        incomment=False
        for line in open(p,encoding='utf-8'):
            t=line.strip()
            if incomment:
                if '*/' in t: incomment=False
                continue
            if not t or t.startswith('//'): continue
            if t.startswith('/*'):
                if '*/' not in t: incomment=True
                continue
            n+=1
    return n
def files(pattern):
    out=subprocess.run(['git','ls-files']+pattern,capture_output=True,text=True).stdout.split()
    return out
src=files(['src/*.cpp','src/*.h','app/*.cpp'])
tests=files(['tests/*.cpp','tests/*.h'])
a,b=code_lines(src),code_lines(tests)
print(f"code {a}  tests {b}  share {b/a:.2f}")
