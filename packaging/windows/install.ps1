<#
.SYNOPSIS
Installs tqcim: files, library path, COM registration, namespace and classes.
.DESCRIPTION
Can be run again, and over an older version: tqcim.json and the INI files that are there are kept.
uninstall.ps1 undoes it.
.PARAMETER Folder
Where tqcim goes. Nobody but administrators may be able to write there.
.PARAMETER Force
Replaces a library path that is there already. uninstall.ps1 puts it back.
#>
[CmdletBinding(SupportsShouldProcess = $true)]
param(
    [string]$Folder = (Join-Path $env:ProgramFiles 'tqcim'),
    [switch]$Force
)
. (Join-Path $PSScriptRoot 'common.ps1')

function Copy-Files {
    if ($Folder -eq $PSScriptRoot) {
        Write-Step "the files are in $Folder already"
        return
    }
    Write-Step "copying the files to $Folder"
    if (-not $PSCmdlet.ShouldProcess($Folder, "Copy the files of $PSScriptRoot")) {
        return
    }
    foreach ($file in Get-Content -LiteralPath (Join-Path $PSScriptRoot $FileList)) {
        $target = Join-Path $Folder $file
        $configuration = $file -eq 'tqcim.json' -or $file -like 'ini\*'
        if ($configuration -and (Test-Path -LiteralPath $target)) {
            Write-Step "keeping $target"
            continue
        }
        New-Item -ItemType Directory -Path (Split-Path $target) -Force | Out-Null
        Copy-Item -LiteralPath (Join-Path $PSScriptRoot $file) -Destination $target -Force
    }
}

function Set-LibraryPath {
    $before = Get-RegistryText $SharedKey $PathValue
    if ($before -eq $Folder) {
        Write-Step "$PathValue is $Folder already"
        return
    }
    # Another version of this system is none that uninstall.ps1 is to bring back.
    if ($before -and (Join-Path $before $Module) -ne (Get-RegisteredModule)) {
        Write-Step "keeping the old $PathValue, $before, as $SavedValue"
        Copy-RegistryValue $SharedKey $PathValue $SavedValue
    }
    Write-Step "setting $PathValue in $SharedKey to $Folder"
    if ($PSCmdlet.ShouldProcess("$SharedKey\$PathValue", "Set to $Folder")) {
        if (-not (Test-Path -LiteralPath $SharedKey)) {
            New-Item -Path $SharedKey -Force | Out-Null
        }
        New-ItemProperty -LiteralPath $SharedKey -Name $PathValue -Value $Folder -PropertyType String -Force | Out-Null
    }
}

function Register-Provider {
    $path = Join-Path $Folder $Module
    Write-Step "registering $path with COM"
    Invoke-Program $Regsvr32 @('/s', "`"$path`"")
    if (-not $WhatIfPreference -and (Get-RegisteredModule) -ne $path) {
        throw "$path could not be registered: $ClsidKey\InprocServer32 names another module or none."
    }
}

function Install-Classes {
    Write-Step 'making the namespace root\cimv2\vorn and its classes'
    $definitions = Join-Path $Folder 'tqcim.mof'
    Invoke-Program $Mofcomp @("`"$definitions`"")
}

function Test-Provider {
    if ($WhatIfPreference) {
        return
    }
    Write-Step 'asking the management service for VORN_System'
    $systems = @(Get-CimInstance -Namespace 'root\cimv2\vorn' -ClassName 'VORN_System')
    if ($systems.Count -eq 0) {
        throw 'The provider answers, but has no VORN_System: see docs\running.md, "Diagnose".'
    }
    Write-Step "installed; the status of $($systems[0].Name) is $($systems[0].Status)"
}

Assert-Rights
$Folder = Get-FullPath $Folder
$other = Get-RegistryText $SharedKey $PathValue
if ($other -and $other -ne $Folder -and -not $Force) {
    throw "$PathValue in $SharedKey is $other already. With -Force it becomes $Folder, and uninstall.ps1 puts it back."
}
Stop-ProviderHost
Copy-Files
Set-LibraryPath
Register-Provider
Install-Classes
Test-Provider
