@echo off
rem Starts the program on the installation that this file stands in. Where its jobs are is a whole path in a
rem settings file of code page 1252, in quotes, or it would end at a comma.
setlocal
chcp 1252 >nul
set "radice=%~dp0"
set "radice=%radice:~0,-1%"
> "%radice%\impostazioni\dirlav" echo "%radice%\Lavori"
start "" /D "%radice%\progra" "%radice%\progra\tarvel1.exe" "|diroot=%radice%|"
